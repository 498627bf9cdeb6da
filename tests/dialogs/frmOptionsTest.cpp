// SPDX-FileCopyrightText: 2026 The qmClient authors
// SPDX-License-Identifier: GPL-3.0-or-later
#include "dialogs/frmOptions.h"

#include "platform/forms/CVTab.h"
#include "tests/dialogs/OptionsWorld.h"

#include <QLabel>
#include <QLineEdit>
#include <QProgressBar>
#include <QPushButton>
#include <QTest>
#include <QToolButton>
#include <QTreeView>

#include <gmock/gmock.h>

#include <filesystem>
#include <future>

namespace dialogs {
namespace {

using errors::ErrorAction;
using testing::ElementsAre;
using testing::IsEmpty;

class frmOptionsTest : public testing::Test, protected OptionsWorld {
protected:
    void clickOK() { control<QPushButton>("cmdOK").click(); }
    void showActive() {
        dialog->show();
        dialog->activateWindow();
        ASSERT_TRUE(QTest::qWaitForWindowActive(&*dialog));
    }
    std::int32_t savedInterval(const char* typed) {
        openWithList();
        control<QLineEdit>("txtInterval").setText(QString::fromLatin1(typed));
        clickOK();
        data::clsConfig saved(registry, messageBoxes, reportTo);
        saved.LoadConfig();
        return saved.PollInterval;
    }
    QTreeView& view() { return *list().findChild<QTreeView*>(); }
    void clickCheckBox(int row) {
        const QModelIndex cell = view().model()->index(row, 0);
        QStyleOptionViewItem option;
        option.initFrom(&view());
        option.rect = view().visualRect(cell);
        option.features = QStyleOptionViewItem::HasCheckIndicator;
        const QRect box =
            view().style()->subElementRect(QStyle::SE_ItemViewItemCheckIndicator, &option, &view());
        QTest::mouseClick(view().viewport(), Qt::LeftButton, {}, box.center());
    }
};

TEST_F(frmOptionsTest, ShowsTheServerTheIntervalAndTheMailboxesFound) {
    mailbox("15", "Support", "ground floor");
    mailbox("12");
    watch(15);
    config->PollInterval = 60;
    openWithList();
    EXPECT_EQ(control<QLineEdit>("txtServer").text(), QStringLiteral("srv01"));
    EXPECT_EQ(control<QLineEdit>("txtInterval").text(), QStringLiteral("60"));
    EXPECT_THAT(rows(), ElementsAre("12|Sales|first floor", "+15|Support|ground floor"));
    EXPECT_EQ(list().ListItems().Item("12K").Index(), 1);
    EXPECT_THAT(errorHandler.reports, IsEmpty());
}

TEST_F(frmOptionsTest, CaptionsAndColumnsComeFromTheTable) {
    openWithList();
    EXPECT_EQ(dialog->windowTitle(), QStringLiteral("Options"));
    EXPECT_EQ(control<forms::CVTab>("CVTab1").TabCaption(1), "Options");
    EXPECT_EQ(control<QLabel>("Label1").text(), QStringLiteral("Quillamar-Server:"));
    EXPECT_EQ(control<QLabel>("Label2").text(), QStringLiteral("Update-Interval:"));
    EXPECT_EQ(control<QLabel>("Label3").text(), QStringLiteral("s (10s - 600s)"));
    EXPECT_EQ(control<QPushButton>("cmdOK").text(), QStringLiteral("OK"));
    EXPECT_EQ(control<QPushButton>("cmdCancel").text(), QStringLiteral("Cancel"));
    auto& columns = list().ColumnHeaders();
    ASSERT_EQ(columns.Count(), 3);
    EXPECT_EQ(columns.Item(1).Text, "ID");
    EXPECT_EQ(columns.Item(1).Key, "MailboxID");
    EXPECT_EQ(columns.Item(2).Key, "Name");
    EXPECT_EQ(columns.Item(3).Text, "Description");
    EXPECT_EQ(columns.Item(3).Key, "Description");
    EXPECT_EQ(list().sendMessage(forms::LVM_GETEXTENDEDLISTVIEWSTYLE, 0, 0),
              forms::LVS_EX_CHECKBOXES | forms::LVS_EX_FULLROWSELECT);
}

TEST_F(frmOptionsTest, AFolderNamedArchiveBesideMailboxesIsNotListed) {
    mailbox("12");
    mailbox("Archive");
    mailbox("15");
    openWithList();
    EXPECT_THAT(rows(), ElementsAre("12|Sales|first floor", "15|Sales|first floor"));
}

TEST_F(frmOptionsTest, MailboxesWithoutADatabaseOrWithoutTheirRowAreSkippedSilently) {
    mailbox("12");
    folder.makeFolder("share/MBX/13");
    folder.makeFile("share/MBX/14/qmLog.mdb", "no database");
    mailboxFile("15").create();
    mailboxFile("15").describeNothing();
    openWithList();
    EXPECT_THAT(rows(), ElementsAre("12|Sales|first floor"));
    EXPECT_THAT(errorHandler.reports, IsEmpty());
}

TEST_F(frmOptionsTest, AMailboxWithoutTheTableIsReportedAndTryAgainReadsItAnew) {
    mailbox("12");
    mailboxFile("13").create();
    errorHandler.answers = {ErrorAction::Retry};
    errorHandler.onReport = [this] { mailboxFile("13").describe("Mended", ""); };
    openWithList();
    ASSERT_EQ(errorHandler.reports.size(), 1U);
    EXPECT_EQ(errorHandler.reports[0].module, "frmOptions");
    EXPECT_EQ(errorHandler.reports[0].procedure, "Init");
    EXPECT_EQ(errorHandler.reports[0].number, basic::kProviderNoTable);
    EXPECT_THAT(rows(), ElementsAre("12|Sales|first floor", "13|Mended|"));
}

TEST_F(frmOptionsTest, WithoutTheMailboxesFolderTheListStaysEmptyWithoutAMessage) {
    std::filesystem::remove_all(folder.path("share/MBX"));
    openWithList();
    EXPECT_THAT(rows(), IsEmpty());
    EXPECT_THAT(errorHandler.reports, IsEmpty());
    EXPECT_THAT(messageBoxes.boxes, IsEmpty());
}

TEST_F(frmOptionsTest, AnUnreachableServerLeavesTheListEmptyWithoutAMessage) {
    config->ServerName = "elsewhere";
    openWithList();
    EXPECT_THAT(rows(), IsEmpty());
    EXPECT_THAT(errorHandler.reports, IsEmpty());
}

TEST_F(frmOptionsTest, WhatStandsForAnEmptyStoreIsNotLookedUp) {
    config->LoadConfig();
    config->ServerName = "srv01";
    ASSERT_EQ(config->Mailboxes.Count(), 1);
    openWithList();
    EXPECT_THAT(errorHandler.reports, IsEmpty());
}

class VanishedMailboxTest : public frmOptionsTest {
protected:
    VanishedMailboxTest() {
        mailbox("12");
        mailbox("15");
        watch(12);
        watch(13);
        watch(15);
    }
};

TEST_F(VanishedMailboxTest, WithIgnoreTheRemainingOnesAreStillCheckedAndOKDropsIt) {
    errorHandler.answers = {ErrorAction::Ignore};
    openWithList();
    ASSERT_EQ(errorHandler.reports.size(), 1U);
    EXPECT_EQ(errorHandler.reports[0].module, "frmOptions");
    EXPECT_EQ(errorHandler.reports[0].procedure, "Init");
    EXPECT_EQ(errorHandler.reports[0].number, basic::kElementNotFound);
    EXPECT_THAT(rows(), ElementsAre("+12|Sales|first floor", "+15|Sales|first floor"));
    clickOK();
    EXPECT_THAT(savedMailboxes(), ElementsAre("12|Sales|first floor|M", "15|Sales|first floor|M"));
}

TEST_F(VanishedMailboxTest, WithTryAgainItIsLookedUpAgain) {
    errorHandler.answers = {ErrorAction::Retry, ErrorAction::Retry, ErrorAction::Ignore};
    openWithList();
    EXPECT_EQ(errorHandler.reports.size(), 3U);
    EXPECT_THAT(rows(), ElementsAre("+12|Sales|first floor", "+15|Sales|first floor"));
}

TEST_F(VanishedMailboxTest, WithCancelTheOnesAfterItStayUnchecked) {
    errorHandler.answers = {ErrorAction::Abort};
    openWithList();
    EXPECT_EQ(errorHandler.reports.size(), 1U);
    EXPECT_THAT(rows(), ElementsAre("+12|Sales|first floor", "15|Sales|first floor"));
}

TEST_F(frmOptionsTest, IntervalsBelowFiveAreSavedAsTen) {
    for (const char* typed : {"3", "0", "", "abc", "4.9", "-7"})
        EXPECT_EQ(savedInterval(typed), 10) << typed;
}

TEST_F(frmOptionsTest, IntervalsFromFiveOnAreSavedAsTheyAre) {
    EXPECT_EQ(savedInterval("5"), 5);
    EXPECT_EQ(savedInterval("7"), 7);
    EXPECT_EQ(savedInterval("1000"), 1000);
}

TEST_F(frmOptionsTest, TheLeadingNumberOfAnIntervalCounts) {
    EXPECT_EQ(savedInterval("45s"), 45);
    EXPECT_EQ(savedInterval(" 4 5,9"), 45);
    EXPECT_EQ(savedInterval("45.9"), 45);
}

TEST_F(frmOptionsTest, AnIntervalBeyondItsTypeIsAnOverflow) {
    errorHandler.answers = {ErrorAction::Ignore};
    config->PollInterval = 60;
    EXPECT_EQ(savedInterval("99999999999"), 60);
    ASSERT_EQ(errorHandler.reports.size(), 1U);
    EXPECT_EQ(errorHandler.reports[0].procedure, "cmdOK_Click");
    EXPECT_EQ(errorHandler.reports[0].number, basic::kOverflow);
}

TEST_F(frmOptionsTest, OKSavesWhatIsCheckedAndHides) {
    mailbox("12");
    mailbox("15", "Support", "");
    watch(12);
    openWithList();
    dialog->show();
    list().ListItems().Item(1).SetChecked(false);
    list().ListItems().Item(2).SetChecked(true);
    EXPECT_TRUE(dialog->Cancelled());
    clickOK();
    EXPECT_FALSE(dialog->Cancelled());
    EXPECT_FALSE(dialog->isVisible());
    EXPECT_THAT(savedMailboxes(), ElementsAre("15|Support||M"));
    ASSERT_EQ(config->Mailboxes.Count(), 1);
    EXPECT_EQ(config->Mailboxes.keyAt(1), "15KEY");
}

class CancelTest : public frmOptionsTest, public testing::WithParamInterface<const char*> {
protected:
    void cancel() {
        const std::string way = GetParam();
        if (way == "button")
            control<QPushButton>("cmdCancel").click();
        else if (way == "escape")
            QTest::keyClick(&list(), Qt::Key_Escape);
        else
            dialog->close();
    }
};

TEST_P(CancelTest, SavesNothingAndPutsTheSettingsBack) {
    mailbox("12");
    watch(12);
    config->SaveConfig();
    servers.answer = QStringLiteral("other");
    openWithList();
    showActive();
    const auto before = registry::RegistryFolder::content(folder.path("registry.reg"));
    control<QToolButton>("cmdServer").click();
    ASSERT_EQ(config->ServerName, "other");
    cancel();
    EXPECT_TRUE(dialog->Cancelled());
    EXPECT_FALSE(dialog->isVisible());
    EXPECT_EQ(config->ServerName, "srv01");
    ASSERT_EQ(config->Mailboxes.Count(), 1);
    EXPECT_EQ(config->Mailboxes.at("KEY12")->Name, "watched");
    EXPECT_EQ(registry::RegistryFolder::content(folder.path("registry.reg")), before);
}

INSTANTIATE_TEST_SUITE_P(Ways, CancelTest, testing::Values("button", "escape", "frame"),
                         [](const auto& way) { return std::string(way.param); });

TEST_F(frmOptionsTest, AnotherServerClearsTheChoiceAndShowsItsMailboxes) {
    mailbox("12");
    config->ServerName = "old";
    watch(12);
    errorHandler.answers = {ErrorAction::Ignore};
    openWithList();
    servers.answer = QStringLiteral("\\\\srv01");
    control<QToolButton>("cmdServer").click();
    ASSERT_TRUE(QTest::qWaitFor([this] { return !search.isSearching(); }));
    EXPECT_THAT(servers.shown, ElementsAre("old"));
    EXPECT_EQ(control<QLineEdit>("txtServer").text(), QStringLiteral("\\\\srv01"));
    EXPECT_EQ(config->ServerName, "\\\\srv01");
    EXPECT_EQ(config->Mailboxes.Count(), 0);
    EXPECT_THAT(rows(), ElementsAre("12|Sales|first floor"));
}

TEST_F(frmOptionsTest, AChoiceThatIsCancelledChangesNothing) {
    mailbox("12");
    watch(12);
    openWithList();
    control<QToolButton>("cmdServer").click();
    EXPECT_EQ(config->ServerName, "srv01");
    EXPECT_EQ(config->Mailboxes.Count(), 1);
    EXPECT_THAT(rows(), ElementsAre("+12|Sales|first floor"));
}

TEST_F(frmOptionsTest, WithoutAServerOneIsChosenFirstAndNothingIsListedTwice) {
    mailbox("12");
    config->ServerName.clear();
    servers.answer = QStringLiteral("srv01");
    openWithList();
    EXPECT_THAT(servers.shown, ElementsAre(""));
    EXPECT_THAT(rows(), ElementsAre("12|Sales|first floor"));
    EXPECT_EQ(list().ColumnHeaders().Count(), 3);
    EXPECT_THAT(errorHandler.reports, IsEmpty());
}

TEST_F(frmOptionsTest, WithoutAServerAndWithoutAChoiceTheListIsEmpty) {
    config->ServerName.clear();
    openWithList();
    EXPECT_THAT(servers.shown, ElementsAre(""));
    EXPECT_THAT(rows(), IsEmpty());
    EXPECT_THAT(errorHandler.reports, IsEmpty());
}

TEST_F(frmOptionsTest, CheckBoxesAreToggledByMouse) {
    mailbox("12");
    mailbox("15");
    openWithList();
    showActive();
    clickCheckBox(1);
    EXPECT_THAT(rows(), ElementsAre("12|Sales|first floor", "+15|Sales|first floor"));
    clickCheckBox(1);
    EXPECT_THAT(rows(), ElementsAre("12|Sales|first floor", "15|Sales|first floor"));
}

TEST_F(frmOptionsTest, TheKeyboardReachesEverythingInOrder) {
    mailbox("12");
    mailbox("15");
    openWithList();
    showActive();
    control<QLineEdit>("txtServer").setFocus();
    std::vector<std::string> reached;
    for (int i = 0; i < 6; ++i) {
        const QWidget* focus = dialog->focusWidget();
        reached.push_back(focus == &view() ? "lsMailboxes" : focus->objectName().toStdString());
        QTest::keyClick(dialog->focusWidget(), Qt::Key_Tab);
    }
    EXPECT_THAT(reached,
                ElementsAre("txtServer", "cmdServer", "txtInterval", "lsMailboxes", "cmdOK", "cmdCancel"));
}

TEST_F(frmOptionsTest, CheckBoxesAreToggledByKeyboardAndReturnMeansOK) {
    mailbox("12");
    mailbox("15");
    openWithList();
    showActive();
    view().setFocus(Qt::TabFocusReason);
    QTest::keyClick(&view(), Qt::Key_Down);
    QTest::keyClick(&view(), Qt::Key_Space);
    EXPECT_THAT(rows(), ElementsAre("12|Sales|first floor", "+15|Sales|first floor"));
    QTest::keyClick(&view(), Qt::Key_Return);
    EXPECT_FALSE(dialog->Cancelled());
    EXPECT_THAT(savedMailboxes(), ElementsAre("15|Sales|first floor|M"));
}

TEST_F(frmOptionsTest, EverythingHasAnAccessibleName) {
    openWithList();
    EXPECT_EQ(control<QLineEdit>("txtServer").accessibleName(), QStringLiteral("Quillamar-Server:"));
    EXPECT_EQ(control<QLineEdit>("txtInterval").accessibleName(),
              QStringLiteral("Update-Interval: s (10s - 600s)"));
    EXPECT_EQ(control<QToolButton>("cmdServer").accessibleName(), QStringLiteral("Choose server"));
    EXPECT_EQ(view().accessibleName(), QStringLiteral("Mailboxes"));
}

// A share that answers only when the test lets it.
class SlowShareTest : public frmOptionsTest {
protected:
    SlowShareTest() {
        mailbox("12");
        watch(12);
        beforeEachQuestion = [answers = opened.get_future().share()] { answers.wait(); };
    }
    ~SlowShareTest() override { release(); }
    void release() {
        if (!std::exchange(isReleased, true))
            opened.set_value();
    }

    std::promise<void> opened;
    bool isReleased = false;
};

TEST_F(SlowShareTest, TheDialogLivesOnWithItsProgressAndHasNothingToConfirmYet) {
    open();
    dialog->show();
    EXPECT_TRUE(control<QLabel>("lblSearch").isVisible());
    EXPECT_TRUE(control<QProgressBar>("barSearch").isVisible());
    EXPECT_FALSE(control<QPushButton>("cmdOK").isEnabled());
    EXPECT_TRUE(control<QPushButton>("cmdCancel").isEnabled());
    release();
    ASSERT_TRUE(QTest::qWaitFor([this] { return !search.isSearching(); }));
    EXPECT_FALSE(control<QProgressBar>("barSearch").isVisible());
    EXPECT_TRUE(control<QPushButton>("cmdOK").isEnabled());
    EXPECT_THAT(rows(), ElementsAre("+12|Sales|first floor"));
}

TEST_F(SlowShareTest, CancelNeedsNoAnswerOfTheShare) {
    open();
    dialog->show();
    control<QPushButton>("cmdCancel").click();
    EXPECT_TRUE(dialog->Cancelled());
    EXPECT_FALSE(search.isSearching());
    dialog.reset();
    release();
    EXPECT_THAT(errorHandler.reports, IsEmpty());
}

TEST_F(SlowShareTest, AnotherServerIsNotKeptWaitingByTheOneThatHangs) {
    open();
    beforeEachQuestion = [] {};
    servers.answer = QStringLiteral("srv01");
    control<QToolButton>("cmdServer").click();
    ASSERT_TRUE(QTest::qWaitFor([this] { return !search.isSearching(); }));
    EXPECT_THAT(rows(), ElementsAre("12|Sales|first floor"));
}

} // namespace
} // namespace dialogs
