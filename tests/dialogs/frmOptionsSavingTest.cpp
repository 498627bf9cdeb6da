// SPDX-FileCopyrightText: 2026 The qmClient authors
// SPDX-License-Identifier: GPL-3.0-or-later
#include "tests/dialogs/OptionsTest.h"

namespace dialogs {
namespace {

using errors::ErrorAction;
using testing::ElementsAre;
using testing::IsEmpty;

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
    control<QPushButton>("cmdServer").click();
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
    control<QPushButton>("cmdServer").click();
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
    control<QPushButton>("cmdServer").click();
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

} // namespace
} // namespace dialogs
