// SPDX-FileCopyrightText: 2026 The qmClient authors
// SPDX-License-Identifier: GPL-3.0-or-later
#include "tests/app/MainWorld.h"

#include <QScreen>
#include <QTest>

namespace app {
namespace {

class MainWindowTest : public MainWorld {
protected:
    forms::TabCollection& tabs() { return tabStrip().Tabs(); }
};

TEST_F(MainWindowTest, NoServerNameShowsThatThereIsNoConnection) {
    configure({}, 10, "");
    load();
    EXPECT_EQ(onlyLine(), "A connection to the server could not be established.");
    EXPECT_EQ(list().ColumnHeaders().Count(), 1);
    EXPECT_EQ(list().ColumnHeaders().Item(1).Width.value, 4000);
    EXPECT_TRUE(list().HideColumnHeaders());
}

TEST_F(MainWindowTest, OneMailboxIsShownWithoutTabs) {
    configure({12});
    mailbox(12).append(1);
    load();
    EXPECT_EQ(tabs().Count(), 0);
    EXPECT_EQ(column(0).size(), 1U);
}

TEST_F(MainWindowTest, TwoMailboxesHaveTabsInTheirStoredOrder) {
    configure({15, 12});
    mailbox(15).append(2);
    mailbox(12).append(1);
    load();
    ASSERT_EQ(tabs().Count(), 2);
    EXPECT_EQ(tabs().Item(1).Key, "KEY15");
    EXPECT_EQ(tabs().Item(1).Caption, "Box 15");
    EXPECT_EQ(tabs().Item(1).Image, 1);
    EXPECT_EQ(tabs().Item(2).Key, "KEY12");
    EXPECT_EQ(tabs().Item(2).Image, 1);
    EXPECT_EQ(column(0).size(), 2U);
}

TEST_F(MainWindowTest, StartsHiddenAndItsCloseBoxHidesIt) {
    configure({12});
    mailbox(12).append(1);
    load();
    EXPECT_FALSE(window->isVisible());
    window->showWindow();
    window->close();
    EXPECT_FALSE(window->isVisible());
    EXPECT_TRUE(window->state().redock);
    mailbox(12).append(1);
    tick();
    EXPECT_EQ(popupText(), "You have  1  new calls");
}

TEST_F(MainWindowTest, ActivationHasThePlayerDockedAnew) {
    configure({12});
    mailbox(12).append(1);
    load();
    tick();
    ASSERT_FALSE(window->state().redock);
    window->showWindow();
    EXPECT_TRUE(QTest::qWaitForWindowActive(&*window));
    EXPECT_TRUE(window->state().redock);
}

TEST_F(MainWindowTest, StandsInTheMiddleOfTheScreenBeforeItIsFirstShown) {
    create();
    const QPoint middle = window->screen()->availableGeometry().center();
    EXPECT_LE((window->geometry().center() - middle).manhattanLength(), 2);
}

TEST_F(MainWindowTest, IntervalIsTheSecondsTimesAThousand) {
    configure({12}, 600);
    load();
    EXPECT_EQ(window->timer().Interval(), 600'000);
}

TEST_F(MainWindowTest, IntervalBeyondThirtyTwoBitsIsReportedAndStartUpGoesOn) {
    configure({12}, 2'147'484);
    errorHandler = errors::RecordingErrorHandler{errors::ErrorAction::Ignore};
    mailbox(12).append(1);
    load();
    ASSERT_EQ(errorHandler.reports.size(), 1U);
    EXPECT_EQ(errorHandler.reports[0].procedure, "InitData");
    EXPECT_EQ(errorHandler.reports[0].number, 6);
    EXPECT_EQ(column(0).size(), 1U);
}

TEST_F(MainWindowTest, UnloadRemovesTheIconAndReleasesTheConfiguration) {
    configure({12});
    mailbox(12).append(1);
    load();
    window->unload(UnloadMode::Code);
    EXPECT_EQ(notificationArea.messages.back(), 2U);
    EXPECT_EQ(window->state().config, nullptr);
    EXPECT_FALSE(window->timer().Enabled());
    EXPECT_TRUE(errorHandler.reports.empty());
}

TEST_F(MainWindowTest, ListShowsTheNewestCallFirstWithFiveColumns) {
    configure({12});
    mailbox(12).append({"A1", "Müller & Söhne", 0});
    mailbox(12).append({"A2", std::nullopt, 7});
    load();
    EXPECT_EQ(list().ColumnHeaders().Count(), 5);
    EXPECT_EQ(list().ColumnHeaders().Item(2).Text, "Date");
    EXPECT_EQ(list().ColumnHeaders().Item(2).Alignment, 1);
    EXPECT_EQ(list().ListItems().Item(1).Key(), "KA2");
    EXPECT_EQ(list().ListItems().Item(1).SubItems(3), "");
    EXPECT_EQ(list().ListItems().Item(1).SubItems(4), "7s");
    EXPECT_EQ(list().ListItems().Item(1).SmallIcon(), 1);
    EXPECT_EQ(list().ListItems().Item(2).SubItems(1), "2023-03-15 12:00:00");
    EXPECT_EQ(list().ListItems().Item(2).SubItems(3), "Müller & Söhne");
    EXPECT_EQ(list().ListItems().Item(2).SubItems(4), "0s");
    EXPECT_EQ(list().ListItems().Item(2).SmallIcon(), 8);
}

TEST_F(MainWindowTest, LengthThatIsNullHasTheMessageIconAndTheBareLetter) {
    configure({12});
    mailbox(12).append({"A1", "x", std::nullopt});
    load();
    EXPECT_EQ(list().ListItems().Item(1).SubItems(4), "s");
    EXPECT_EQ(list().ListItems().Item(1).SmallIcon(), 1);
}

TEST_F(MainWindowTest, EmptyLogShowsHeadersAndNoRows) {
    configure({12});
    mailbox(12);
    load();
    EXPECT_EQ(list().ColumnHeaders().Count(), 5);
    EXPECT_FALSE(list().HideColumnHeaders());
    EXPECT_EQ(list().ListItems().Count(), 0);
}

TEST_F(MainWindowTest, CallIDThatStandsTwiceIsReportedAndItsRowSkippedWhole) {
    configure({12});
    errorHandler = errors::RecordingErrorHandler{errors::ErrorAction::Ignore, errors::ErrorAction::Ignore};
    mailbox(12).append({"A1", "first", 1});
    mailbox(12).append({"A1", "second", 1});
    mailbox(12).append({"A0", "third", 1});
    load();
    ASSERT_EQ(errorHandler.reports.size(), 2U); // the first poll fills the list a second time
    EXPECT_EQ(errorHandler.reports[0].module, "basCommon");
    EXPECT_EQ(errorHandler.reports[0].procedure, "FillListView2");
    EXPECT_EQ(errorHandler.reports[0].number, 35602);
    EXPECT_EQ(column(3), (std::vector<std::string>{"third", "second"}));
}

TEST_F(MainWindowTest, SelectedCallIsTold) {
    configure({12});
    mailbox(12).append(2);
    load();
    std::vector<std::string> told;
    QObject::connect(&*window, &frmMain::ItemChanged,
                     [&](const auto&, const std::string& callID) { told.push_back(callID); });
    window->ChangeItem();
    list().SetSelectedItem(list().ListItems().Item(2));
    window->ChangeItem();
    EXPECT_EQ(told, (std::vector<std::string>{"-1", "C1"}));
    EXPECT_NE(window->state().currentConnection, nullptr);
}

TEST_F(MainWindowTest, NoMailboxesAnnouncesNoCall) {
    configure({12});
    mailbox(12).append(1);
    load();
    window->state().config->Clear();
    std::string told;
    QObject::connect(&*window, &frmMain::ItemChanged, [&](const auto&, const std::string& id) { told = id; });
    list().SetSelectedItem(list().ListItems().Item(1));
    window->ChangeItem();
    EXPECT_EQ(told, "-1");
    window->LoadList();
    EXPECT_EQ(onlyLine(), "There are currently no mailboxes configured.");
}

TEST_F(MainWindowTest, EmptyStoreShowsThatNoMailboxesAreConfigured) {
    configure({});
    load();
    EXPECT_EQ(onlyLine(), "There are currently no mailboxes configured.");
    EXPECT_TRUE(list().HideColumnHeaders());
    EXPECT_EQ(tabs().Count(), 0);
}

TEST_F(MainWindowTest, FirstColumnKeepsItsWidthForBothFormsOfTheNotification) {
    configure({12});
    load();
    for (const std::int32_t code : {-306, -326})
        for (const std::int32_t item : {0, 1}) {
            const forms::HeaderNotification notification{0, 0, code, item, 0};
            EXPECT_EQ(window->messages().ISubclass_WindowProc(0, 78, 0,
                                                              reinterpret_cast<std::intptr_t>(&notification)),
                      item == 0 ? 1 : 0);
        }
}

} // namespace
} // namespace app
