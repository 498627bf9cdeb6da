// SPDX-FileCopyrightText: 2026 The qmClient authors
// SPDX-License-Identifier: GPL-3.0-or-later
#include "platform/forms/CVTab.h"
#include "tests/dialogs/OptionsTest.h"

#include <QLabel>

#include <filesystem>

namespace dialogs {
namespace {

using errors::ErrorAction;
using testing::ElementsAre;
using testing::IsEmpty;

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

} // namespace
} // namespace dialogs
