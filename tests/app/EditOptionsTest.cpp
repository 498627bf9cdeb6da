// SPDX-FileCopyrightText: 2026 The qmClient authors
// SPDX-License-Identifier: GPL-3.0-or-later
#include "app/EditOptions.h"

#include "tests/app/MainWorld.h"

#include <QLineEdit>
#include <QPushButton>
#include <QTabBar>
#include <QTest>

#include <gmock/gmock.h>

#include <filesystem>

namespace app {
namespace {

using dialogs::frmOptions;
using testing::ElementsAre;
using testing::HasSubstr;

constexpr const char* kNoConnection = "A connection to the server could not be established.";

class EditOptionsTest : public MainWorld {
protected:
    void describedMailbox(int id, int calls) {
        mailbox(id).append(calls);
        mailbox(id).describe("Box " + std::to_string(id), "");
    }
    void waitForList() {
        ASSERT_TRUE(QTest::qWaitFor([this] { return !search.isSearching(); }));
    }
    static forms::ListView& listOf(frmOptions& dialog) { return *dialog.findChild<forms::ListView*>(); }
    static void press(frmOptions& dialog, const char* button) {
        dialog.findChild<QPushButton*>(QString::fromLatin1(button))->click();
    }
    // Checks these mailboxes and confirms.
    auto choosing(const std::vector<std::string>& keys) {
        return [this, keys](frmOptions& dialog) {
            waitForList();
            for (const std::string& key : keys)
                listOf(dialog).ListItems().Item(key).SetChecked(true);
            press(dialog, "cmdOK");
        };
    }
};

TEST_F(EditOptionsTest, AStartWithoutAServerOpensTheOptionsBeforeTheListIsThere) {
    configure({}, 10, "");
    std::string listed = "?";
    options.action = [&](frmOptions& dialog) {
        listed = std::to_string(list().ListItems().Count());
        dialog.reject();
    };
    load();
    EXPECT_EQ(options.seen, 1);
    EXPECT_EQ(listed, "0");
    EXPECT_THAT(servers.shown, ElementsAre(""));
    EXPECT_EQ(onlyLine(), kNoConnection);
}

TEST_F(EditOptionsTest, AFirstStartEndsWithTheCallsOfWhatWasChosen) {
    configure({}, 10, "");
    describedMailbox(12, 3);
    describedMailbox(15, 1);
    servers.answer = QStringLiteral("srv01");
    options.action = choosing({"15K"});
    load();
    EXPECT_EQ(column(0).size(), 1U);
    EXPECT_EQ(window->state().config->ServerName, "srv01");
    EXPECT_THAT(settingsFile(), HasSubstr("\"ServerName\"=\"srv01\""));
    EXPECT_EQ(errorHandler.reports.size(), 0U);
}

TEST_F(EditOptionsTest, AfterOKEverythingIsBuiltAnew) {
    configure({12});
    describedMailbox(12, 3);
    describedMailbox(15, 1);
    load();
    ASSERT_EQ(column(0).size(), 3U);
    options.action = choosing({"15K"});
    window->ab_ToolClick("miVOptions");
    ASSERT_EQ(tabStrip().Tabs().Count(), 2);
    EXPECT_EQ(tabStrip().Tabs().Item(2).Key, "KEY15");
    EXPECT_EQ(tabStrip().Tabs().Item(2).Caption, "Box 15");
    EXPECT_EQ(window->state().newCallTotal, 0);
}

TEST_F(EditOptionsTest, TheKeysOfTheDialogKeepTabsAndPollsWorking) {
    configure({12});
    describedMailbox(12, 3);
    describedMailbox(15, 1);
    load();
    options.action = choosing({"15K"});
    window->ab_ToolClick("miVOptions");
    EXPECT_TRUE(window->state().config->Mailboxes.contains("15KEY"));
    QTest::keyClick(tabStrip().findChild<QTabBar*>(), Qt::Key_Right);
    EXPECT_EQ(column(0).size(), 1U);
    mailbox(15).append(2);
    tick();
    EXPECT_EQ(popupText(), "You have  2  new calls");
}

TEST_F(EditOptionsTest, CancelLeavesEverythingAsItIs) {
    configure({12});
    describedMailbox(12, 3);
    load();
    const std::uint32_t generation = window->state().generation;
    const std::string before = settingsFile();
    window->ab_ToolClick("miVOptions");
    EXPECT_EQ(options.seen, 1);
    EXPECT_EQ(window->state().generation, generation);
    EXPECT_EQ(settingsFile(), before);
    EXPECT_EQ(column(0).size(), 3U);
}

// A tick finds the other server while the dialog is up, and builds everything over settings without a
// mailbox.
TEST_F(EditOptionsTest, WhatATickBuiltFromSettingsThatWereGivenUpIsBuiltAnew) {
    configure({12}, 10, "elsewhere");
    describedMailbox(12, 3);
    errorHandler.answers = {errors::ErrorAction::Ignore};
    load();
    ASSERT_EQ(onlyLine(), kNoConnection);
    servers.answer = QStringLiteral("srv01");
    options.action = [this](frmOptions& dialog) {
        waitForList();
        press(dialog, "cmdServer");
        tick();
        EXPECT_EQ(onlyLine(), "There are currently no mailboxes configured.");
        dialog.reject();
    };
    window->ab_ToolClick("miVOptions");
    EXPECT_EQ(window->state().config->ServerName, "elsewhere");
    EXPECT_EQ(onlyLine(), kNoConnection);
}

// The report lets events run.
TEST_F(EditOptionsTest, TicksBesideAnOKThatFailsCountWhatWasWatchedBefore) {
    configure({12});
    describedMailbox(12, 3);
    describedMailbox(15, 5);
    load();
    errorHandler.onReport = [this] {
        tick();
        errorHandler.onReport = nullptr;
    };
    options.action = [this](frmOptions& dialog) {
        waitForList();
        listOf(dialog).ListItems().Item("12K").SetChecked(false);
        listOf(dialog).ListItems().Item("15K").SetChecked(true);
        dialog.findChild<QLineEdit*>(QStringLiteral("txtInterval"))->setText(QStringLiteral("99999999999"));
        press(dialog, "cmdOK");
        tick();
        dialog.reject();
    };
    window->ab_ToolClick("miVOptions");
    tick();
    EXPECT_EQ(errorHandler.reports.size(), 1U);
    EXPECT_EQ(window->state().newCallTotal, 0);
    EXPECT_EQ(popup(), nullptr);
    EXPECT_EQ(column(0).size(), 3U);
}

// The first poll could not learn the count, and the next one finds nobody to ask.
TEST_F(EditOptionsTest, ATickBesideAnotherServerLeavesTheFirstCountsToBeLearned) {
    configure({12});
    describedMailbox(12, 3);
    const auto kept = folder.path("kept.mdb");
    std::filesystem::copy_file(mailbox(12).path(), kept);
    std::filesystem::resize_file(mailbox(12).path(), 3 * 4096);
    load();
    std::filesystem::copy_file(kept, mailbox(12).path(), std::filesystem::copy_options::overwrite_existing);
    servers.answer = QStringLiteral("elsewhere");
    options.action = [this](frmOptions& dialog) {
        press(dialog, "cmdServer");
        tick();
        dialog.reject();
    };
    window->ab_ToolClick("miVOptions");
    tick();
    EXPECT_EQ(popup(), nullptr);
    EXPECT_EQ(window->state().config->Mailboxes.at(1)->LastCallCount, 3);
}

TEST_F(EditOptionsTest, ASecondCommandBringsTheDialogToTheFront) {
    configure({12});
    describedMailbox(12, 1);
    load();
    options.action = [this](frmOptions& dialog) {
        window->ab_ToolClick("miVOptions");
        dialog.reject();
    };
    window->ab_ToolClick("miVOptions");
    EXPECT_EQ(options.seen, 1);
}

TEST_F(EditOptionsTest, AProgramThatEndsMeanwhileBuildsNothing) {
    configure({12});
    describedMailbox(12, 1);
    load();
    options.action = [this](frmOptions&) { window->unload(UnloadMode::SessionEnd); };
    window->ab_ToolClick("miVOptions");
    EXPECT_TRUE(window->isUnloaded());
    EXPECT_EQ(errorHandler.reports.size(), 0U);
}

TEST_F(EditOptionsTest, AStartThatIsToldToEndInTheDialogGoesNoFurther) {
    configure({}, 10, "");
    options.action = [this](frmOptions&) {
        window->state().exitRequested = true;
        window->answerModalDialog();
    };
    load();
    EXPECT_EQ(list().ListItems().Count(), 0);
}

} // namespace
} // namespace app
