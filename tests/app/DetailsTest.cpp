// SPDX-FileCopyrightText: 2026 The qmClient authors
// SPDX-License-Identifier: GPL-3.0-or-later
// The details dialog beside the real window.
#include "tests/app/MainWorld.h"

#include <QDialog>
#include <QLabel>
#include <QPointer>
#include <QPushButton>

namespace app {
namespace {

class DetailsTest : public MainWorld {
protected:
    void show(const std::vector<int>& ids = {12}) {
        configure(ids);
        for (const int id : ids)
            mailbox(id).append(3);
        load();
        window->showWindow();
    }
    void select(int index) {
        list().SetSelectedItem(list().ListItems().Item(index));
        Q_EMIT list().Click();
    }
    QDialog& dialog() { return *window->findChild<QDialog*>(QStringLiteral("frmCallDetails")); }
    std::string shownCall() {
        return dialog().findChild<QLabel*>(QStringLiteral("lblCallID"))->text().toStdString();
    }
    bool saysNoCall() { return dialog().findChild<QLabel*>(QStringLiteral("lblNoEvent"))->isVisible(); }
    void press(const char* button) { dialog().findChild<QPushButton*>(QString::fromLatin1(button))->click(); }
};

TEST_F(DetailsTest, IsCreatedAtStartAndNotShown) {
    show();
    EXPECT_FALSE(dialog().isVisible());
}

TEST_F(DetailsTest, CommandShowsTheSelectedCallBesideTheWindow) {
    show();
    select(2);
    window->ab_ToolClick("miEDetails");
    EXPECT_TRUE(dialog().isVisible());
    EXPECT_FALSE(dialog().isModal());
    EXPECT_EQ(dialog().parentWidget(), &*window);
    EXPECT_EQ(shownCall(), "C2");
}

TEST_F(DetailsTest, CommandWithoutASelectedCallSaysSo) {
    show();
    window->ab_ToolClick("miEDetails");
    EXPECT_TRUE(saysNoCall());
}

TEST_F(DetailsTest, FollowsEveryChangeOfTheSelection) {
    show();
    window->ab_ToolClick("miEDetails");
    for (const auto& [index, callID] : {std::pair(1, "C3"), std::pair(3, "C1"), std::pair(2, "C2")}) {
        select(index);
        EXPECT_EQ(shownCall(), callID);
    }
}

TEST_F(DetailsTest, ArrowsStepThroughTheListAndStopAtItsEnds) {
    show();
    select(1);
    window->ab_ToolClick("miEDetails");
    press("cmdUp");
    EXPECT_EQ(shownCall(), "C3");
    press("cmdDown");
    press("cmdDown");
    EXPECT_EQ(shownCall(), "C1");
    press("cmdDown");
    EXPECT_EQ(shownCall(), "C1");
    EXPECT_EQ(list().SelectedItem()->Index(), 3);
}

TEST_F(DetailsTest, ClosedDialogFollowsAndComesBack) {
    show();
    select(1);
    window->ab_ToolClick("miEDetails");
    press("Command1");
    EXPECT_FALSE(dialog().isVisible());
    select(3);
    EXPECT_EQ(shownCall(), "C1");
    window->ab_ToolClick("miEDetails");
    EXPECT_TRUE(dialog().isVisible());
}

TEST_F(DetailsTest, SelectionThatAReloadTakesAwayEmptiesIt) {
    show();
    select(1);
    window->ab_ToolClick("miEDetails");
    ASSERT_EQ(shownCall(), "C3");
    mailbox(12).append(1);
    tick();
    EXPECT_EQ(column(0).size(), 4U);
    EXPECT_TRUE(saysNoCall());
    EXPECT_TRUE(errorHandler.reports.empty());
}

TEST_F(DetailsTest, AnotherTabEmptiesItAndItsCallsComeFromThere) {
    show({12, 15});
    mailbox(15).append({"B1", "Carl", 7});
    select(1);
    window->ab_ToolClick("miEDetails");
    tabStrip().SetSelectedItem(2);
    Q_EMIT tabStrip().Click();
    EXPECT_TRUE(saysNoCall());
    select(1);
    EXPECT_EQ(shownCall(), "B1");
}

TEST_F(DetailsTest, MailboxThatIsDeletedOnTheServerLeavesAnEmptyListAndDialog) {
    show({12, 15});
    select(1);
    window->ab_ToolClick("miEDetails");
    std::filesystem::remove_all(folder.path("share/MBX/12"));
    window->LoadList();
    EXPECT_TRUE(column(0).empty());
    EXPECT_EQ(tabStrip().Tabs().Count(), 2);
    tabStrip().SetSelectedItem(2);
    Q_EMIT tabStrip().Click();
    EXPECT_EQ(column(0).size(), 3U);
    tabStrip().SetSelectedItem(1);
    Q_EMIT tabStrip().Click();
    EXPECT_TRUE(column(0).empty());
    EXPECT_TRUE(saysNoCall());
}

TEST_F(DetailsTest, CallIDWithAnApostropheIsReportedOnceByTheDialog) {
    configure({12});
    mailbox(12).append({"it's", "x", 1});
    load();
    window->showWindow();
    window->ab_ToolClick("miEDetails");
    ASSERT_TRUE(errorHandler.reports.empty());
    select(1);
    ASSERT_EQ(errorHandler.reports.size(), 1U);
    EXPECT_EQ(errorHandler.reports[0].module, "frmCallDetails");
    EXPECT_EQ(errorHandler.reports[0].procedure, "LoadData");
    EXPECT_EQ(errorHandler.reports[0].number, basic::kProviderSyntax);
    EXPECT_EQ(column(0).size(), 1U);
}

TEST_F(DetailsTest, IsNotShownOverAModalWindow) {
    show();
    QDialog modal;
    modal.open();
    window->ab_ToolClick("miEDetails");
    EXPECT_FALSE(dialog().isVisible());
    ASSERT_EQ(errorHandler.reports.size(), 1U);
    EXPECT_EQ(errorHandler.reports[0].procedure, "ShowDetails");
    EXPECT_EQ(errorHandler.reports[0].number, basic::kNonModalWhileModal);
}

TEST_F(DetailsTest, GoesWithTheWindow) {
    show();
    select(1);
    window->ab_ToolClick("miEDetails");
    const QPointer<QDialog> gone = &dialog();
    window->unload(UnloadMode::Code);
    EXPECT_TRUE(gone.isNull());
    EXPECT_TRUE(errorHandler.reports.empty());
}

} // namespace
} // namespace app
