// SPDX-FileCopyrightText: 2026 The qmClient authors
// SPDX-License-Identifier: GPL-3.0-or-later
#include "tests/app/MainWorld.h"
#include "tests/platform/share/smb/SambaServer.h"

#include <QTest>

#include <pthread.h>

#include <cstddef>
#include <filesystem>

namespace app {
namespace {

// No process has room for the stack of a thread of this size.
class NoThreads {
public:
    NoThreads() {
        ::pthread_getattr_default_np(&m_before);
        pthread_attr_t huge = m_before;
        ::pthread_attr_setstacksize(&huge, std::size_t{1} << 46);
        ::pthread_setattr_default_np(&huge);
    }
    NoThreads(const NoThreads&) = delete;
    NoThreads& operator=(const NoThreads&) = delete;
    ~NoThreads() { ::pthread_setattr_default_np(&m_before); }

private:
    pthread_attr_t m_before{};
};

// The main window over a server that is really asked: the list reads the share's folder, the counts come
// ahead by SMB.
class PollAheadTest : public MainWorld {
protected:
    PollAheadTest() {
        shareAccess.countsAhead = &m_counts;
        shareAccess.endWaits = [this] { m_counts.end(); };
    }

    void loadAndLearn() {
        load();
        finishPoll();
    }
    void loadTwelveCalls() {
        configure({12});
        mailbox(12).append(12);
        loadAndLearn();
    }
    // Until the answers came and the routine ran over them.
    void finishPoll() {
        ASSERT_TRUE(QTest::qWaitFor([this] { return !m_counts.isAsking(); }, 60'000));
    }
    void tickAndFinish() {
        tick();
        finishPoll();
    }

    // A client's own connections to the server.
    share::smb::SmbServers connections() {
        using share::testing::SambaServer;
        return {{.program = share::smb::helperProgram(),
                 .spread = [] { return 0.0; },
                 .credentials =
                     [](const std::string&) {
                         return share::smb::Credentials::of(SambaServer::kUser, "secret");
                     }},
                [this](std::string_view) {
                    return share::smb::ServerAddress{"127.0.0.1", m_samba.port()};
                }};
    }

    share::testing::SambaServer m_samba{{.folder = folder.makeFolder("share")}};
    share::smb::SmbServers m_servers = connections();
    CountsAhead m_counts{m_servers, share::ShareResolver(nullptr, nullptr)};
};

TEST_F(PollAheadTest, AnnouncesWhatTheServerCounted) {
    configure({12, 15});
    mailbox(12).append(12);
    mailbox(15).append(1);
    loadAndLearn();
    EXPECT_EQ(window->state().config->Mailboxes.at(1)->LastCallCount, 12);
    EXPECT_EQ(popup(), nullptr);
    mailbox(12).append(2);
    mailbox(15).append(5);
    tickAndFinish();
    EXPECT_EQ(popupText(), "You have  7  new calls");
}

TEST_F(PollAheadTest, ReturnsToTheEventLoopWhileTheServerHangs) {
    loadTwelveCalls();
    mailbox(12).append(3);
    m_samba.pause();
    tick();
    EXPECT_TRUE(m_counts.isAsking());
    EXPECT_EQ(popup(), nullptr);
    m_samba.resume();
    finishPoll();
    EXPECT_EQ(popupText(), "You have  3  new calls");
}

TEST_F(PollAheadTest, PollsOnceMoreForAllTicksThatComeMeanwhile) {
    loadTwelveCalls();
    mailbox(12).append(3);
    int polls = 0; // that found new calls
    QObject::connect(&*window, &frmMain::ItemChanged, &*window, [&] {
        ++polls;
        mailbox(12).append(1);
    });
    m_samba.pause();
    tick();
    tick();
    tick();
    m_samba.resume();
    finishPoll();
    EXPECT_EQ(polls, 2);
    EXPECT_EQ(popupText(), "You have  4  new calls");
}

TEST_F(PollAheadTest, AnswersThatComeInsideOfAWaitAreLeftForAfterIt) {
    configure({12});
    mailbox(12).append(12);
    std::vector<std::function<void()>> later;
    bool isWaiting = false;
    shareAccess.afterWaiting = [&](std::function<void()> work) {
        if (isWaiting)
            later.push_back(std::move(work));
        else
            work();
    };
    loadAndLearn();
    mailbox(12).append(3);
    tick();
    isWaiting = true;
    finishPoll();
    EXPECT_EQ(popup(), nullptr);
    ASSERT_EQ(later.size(), 1U);
    later[0]();
    EXPECT_EQ(popupText(), "You have  3  new calls");
}

TEST_F(PollAheadTest, PassesOverADatabaseThatSomebodyElseHasToHimselfAndCountsItAfterwards) {
    loadTwelveCalls();
    share::smb::SmbServers others = connections();
    share::ThreadWaiter waiter;
    share::smb::SmbFileSystemObject theirs{others, waiter};
    auto held = theirs.openFile("\\\\srv01\\Quillamar_0$\\MBX\\12\\qmLog.mdb", share::OpenMode::Exclusive);
    mailbox(12).append(3);
    tickAndFinish();
    EXPECT_EQ(popup(), nullptr);
    held.reset();
    tickAndFinish();
    EXPECT_EQ(popupText(), "You have  3  new calls");
    EXPECT_TRUE(errorHandler.reports.empty());
}

TEST_F(PollAheadTest, SkipsAMailboxThatIsMissingWithoutAWord) {
    configure({12, 15});
    mailbox(15).append(1);
    loadAndLearn();
    mailbox(15).append(1);
    tickAndFinish();
    EXPECT_EQ(popupText(), "You have  1  new calls");
    EXPECT_TRUE(errorHandler.reports.empty());
}

TEST_F(PollAheadTest, ReportsACountThatFailedAndTryAgainAsksTheServerAnew) {
    configure({12});
    mailbox(12).append(5);
    loadAndLearn();
    const auto file = mailbox(12).path();
    const auto kept = folder.path("kept.mdb");
    std::filesystem::copy_file(file, kept);
    std::filesystem::resize_file(file, 3 * 4096);
    errorHandler.answers.push_back(errors::ErrorAction::Retry);
    errorHandler.onReport = [&] {
        std::filesystem::copy_file(kept, file, std::filesystem::copy_options::overwrite_existing);
        mailbox(12).append(2);
        errorHandler.onReport = nullptr;
    };
    tickAndFinish();
    ASSERT_EQ(errorHandler.reports.size(), 1U);
    EXPECT_EQ(errorHandler.reports[0].procedure, "mTimer_ThatTime");
    EXPECT_EQ(popupText(), "You have  2  new calls");
}

TEST_F(PollAheadTest, AsksAnewWhenTheConfigurationWasLoadedMeanwhile) {
    loadTwelveCalls();
    mailbox(12).append(3);
    m_samba.pause();
    tick();
    window->InitData(); // learns the counts anew: the three are not new to it
    m_samba.resume();
    finishPoll();
    finishPoll();
    EXPECT_EQ(popup(), nullptr);
    EXPECT_TRUE(
        QTest::qWaitFor([this] { return window->state().config->Mailboxes.at(1)->LastCallCount == 15; }));
    EXPECT_EQ(window->state().newCallTotal, 0);
}

TEST_F(PollAheadTest, IsLeftByTheEndOfTheProgramAtOnce) {
    loadTwelveCalls();
    m_samba.pause();
    tick();
    window->state().exitRequested = true;
    tick();
    EXPECT_EQ(window->state().config, nullptr);
    finishPoll(); // the question ended without its answer
}

TEST_F(PollAheadTest, AnnouncesNothingOnceTheProgramIsToEnd) {
    loadTwelveCalls();
    mailbox(12).append(3);
    m_samba.pause();
    tick();
    window->state().exitRequested = true;
    m_samba.resume();
    finishPoll();
    EXPECT_EQ(popup(), nullptr);
    EXPECT_EQ(window->state().config->Mailboxes.at(1)->LastCallCount, 12);
}

TEST_F(PollAheadTest, LeavesTheTickThatEndsTheProgramItsTimeWhenTheServerComesUp) {
    configure({12});
    mailbox(12).append(12);
    std::filesystem::rename(folder.path("share"), folder.path("away"));
    loadAndLearn();
    std::filesystem::rename(folder.path("away"), folder.path("share"));
    const std::uint32_t generation = window->state().generation;
    tick();
    window->state().exitRequested = true;
    window->timer().SetInterval(200);
    finishPoll();
    EXPECT_EQ(window->timer().Interval(), 200);
    EXPECT_EQ(window->state().generation, generation);
}

TEST_F(PollAheadTest, FindsAServerThatComesUpLater) {
    configure({12});
    mailbox(12).append(12);
    std::filesystem::rename(folder.path("share"), folder.path("away"));
    loadAndLearn();
    EXPECT_EQ(onlyLine(), "A connection to the server could not be established.");
    std::filesystem::rename(folder.path("away"), folder.path("share"));
    tickAndFinish();
    finishPoll();
    EXPECT_EQ(column(0).size(), 12U);
    EXPECT_EQ(popup(), nullptr);
}

TEST_F(PollAheadTest, BuildsNothingAnewWhileTheServersShareIsMissing) {
    configure({12});
    mailbox(12).append(12);
    std::filesystem::rename(folder.path("share"), folder.path("away"));
    loadAndLearn();
    const std::uint32_t generation = window->state().generation;
    tickAndFinish();
    EXPECT_EQ(window->state().generation, generation);
}

TEST_F(PollAheadTest, IsLeftOutWhileThereIsNoThread) {
    loadTwelveCalls();
    mailbox(12).append(3);
    {
        const NoThreads none;
        tick();
    }
    EXPECT_FALSE(m_counts.isAsking());
    EXPECT_EQ(popupText(), "You have  3  new calls");
    mailbox(12).append(1);
    tickAndFinish();
    EXPECT_EQ(popupText(), "You have  4  new calls");
}

TEST_F(PollAheadTest, IsNotUsedForAFolderOfThisMachine) {
    CountsAhead counts(
        m_servers,
        share::ShareResolver([](std::string_view) { return std::optional<std::string>("/srv"); }, nullptr));
    EXPECT_FALSE(counts.ask({"\\\\srv01\\Quillamar_0$", {}}, [](const CountAnswers&) { FAIL(); }));
}

TEST_F(PollAheadTest, AsksAMountedFolderAheadAsWell) {
    const std::string table = "41 22 0:40 / " + folder.path("share") + " rw - cifs //srv01/Quillamar_0$ rw\n";
    CountsAhead counts{m_servers, share::ShareResolver(nullptr, [table] { return table; })};
    shareAccess.countsAhead = &counts;
    m_samba.pause();
    loadTwelveCalls();
    ASSERT_TRUE(QTest::qWaitFor([&] { return !counts.isAsking(); }, 60'000));
    mailbox(12).append(3);
    tick();
    EXPECT_TRUE(counts.isAsking());
    EXPECT_EQ(popup(), nullptr);
    ASSERT_TRUE(QTest::qWaitFor([&] { return !counts.isAsking(); }, 60'000));
    EXPECT_EQ(popupText(), "You have  3  new calls");
    m_samba.resume();
}

} // namespace
} // namespace app
