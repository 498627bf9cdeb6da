// SPDX-FileCopyrightText: 2026 The qmClient authors
// SPDX-License-Identifier: GPL-3.0-or-later
// What happens inside of the list's and the poll's waits, and of a report: all let events run.
#include "tests/app/MainWorld.h"

#include <QTimer>

#include <filesystem>
#include <functional>
#include <vector>

namespace app {
namespace {

class ReentryTest : public MainWorld {
protected:
    void SetUp() override {
        configure({12});
        mailbox(12).append(2);
        load();
        QObject::connect(&*window, &frmMain::ItemChanged, &*window, [this] { ++listsLoaded; });
    }
    // In the next wait that lets events run.
    void meanwhile(std::function<void()> action) {
        QTimer::singleShot(0, &*window, [this, action = std::move(action)] {
            action();
            wasRun = true;
        });
    }

    int listsLoaded = 0;
    bool wasRun = false;
};

TEST_F(ReentryTest, ListAskedForMeanwhileIsLoadedAfterwards) {
    meanwhile([this] {
        window->LoadList();
        EXPECT_EQ(listsLoaded, 0);
    });
    window->LoadList();
    EXPECT_TRUE(wasRun);
    EXPECT_EQ(listsLoaded, 2);
    EXPECT_EQ(column(0).size(), 2U);
}

TEST_F(ReentryTest, PollAskedForMeanwhileRunsAfterwards) {
    mailbox(12).append(1);
    meanwhile([this] {
        mailbox(12).append(3);
        tick();
        EXPECT_EQ(window->state().newCallTotal, 1);
    });
    tick();
    EXPECT_TRUE(wasRun);
    EXPECT_EQ(window->state().newCallTotal, 4);
    EXPECT_EQ(popupText(), "You have  4  new calls");
    EXPECT_EQ(column(0).size(), 6U);
}

TEST_F(ReentryTest, PollEndsWithoutAnAnnouncementWhenEverythingIsBuiltAnewMeanwhile) {
    mailbox(12).append(1);
    // What is logged after the building is old to the first poll that follows it.
    meanwhile([this] {
        window->InitData();
        mailbox(12).append(2);
    });
    tick();
    EXPECT_TRUE(wasRun);
    EXPECT_EQ(window->state().newCallTotal, 0);
    EXPECT_EQ(popup(), nullptr);
    EXPECT_EQ(window->state().config->Mailboxes.at(1)->LastCallCount, 5);
    EXPECT_FALSE(window->state().firstPoll);
}

TEST_F(ReentryTest, PollEndsWithoutAnAnnouncementWhenTheProgramIsToEndMeanwhile) {
    mailbox(12).append(1);
    meanwhile([this] { window->state().exitRequested = true; });
    tick();
    EXPECT_TRUE(wasRun);
    EXPECT_EQ(popup(), nullptr);
    EXPECT_FALSE(window->isUnloaded());
}

TEST_F(ReentryTest, PollEndsWhenTheWindowIsUnloadedMeanwhile) {
    mailbox(12).append(1);
    meanwhile([this] { window->unload(UnloadMode::SessionEnd); });
    tick();
    EXPECT_TRUE(wasRun);
    EXPECT_EQ(window->state().config, nullptr);
    EXPECT_EQ(popup(), nullptr);
    EXPECT_TRUE(errorHandler.reports.empty());
}

// The user ends the program while a poll's first report is up; a tick had come before.
class EndInAReportTest : public MainWorld {
protected:
    std::size_t reportsOfAPoll(const std::vector<int>& damaged, errors::ErrorAction answer) {
        configure(damaged);
        for (const int id : damaged)
            mailbox(id).append(5);
        load();
        for (const int id : damaged)
            std::filesystem::resize_file(mailbox(id).path(), 3 * 4096);
        errorHandler.answers = {answer};
        errorHandler.onReport = [this] {
            tick();
            window->state().exitRequested = true;
            errorHandler.onReport = nullptr;
        };
        tick();
        return errorHandler.reports.size();
    }
};

TEST_F(EndInAReportTest, NoFurtherPollBegins) {
    EXPECT_EQ(reportsOfAPoll({12}, errors::ErrorAction::Abort), 1U);
}

TEST_F(EndInAReportTest, NoFurtherMailboxIsCounted) {
    EXPECT_EQ(reportsOfAPoll({12, 15}, errors::ErrorAction::Ignore), 1U);
}

} // namespace
} // namespace app
