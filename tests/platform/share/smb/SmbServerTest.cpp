// SPDX-FileCopyrightText: 2026 The qmClient authors
// SPDX-License-Identifier: GPL-3.0-or-later
#include "platform/share/smb/SmbServer.h"

#include "tests/platform/share/smb/SmbTest.h"

#include <gmock/gmock.h>

#include <chrono>
#include <csignal>
#include <thread>

namespace share::testing {
namespace {

using namespace std::chrono_literals;

class SmbServerTest : public ::testing::Test {
protected:
    SmbServerTest() { m_samba.share().makeFile("log", "abc"); }
    bool isThere() { return m_client.files().FileExists(onShare("log")); }

    SambaServer m_samba;
    SmbClient m_client{m_samba.port()};
};

TEST_F(SmbServerTest, SaysHowFarItCame) {
    const auto textOf = [](SmbClient& client, const std::string& path) -> std::string {
        try {
            client.files().openFile(path, OpenMode::Read);
        } catch (const basic::RuntimeError& error) {
            return error.description();
        }
        return "opened";
    };
    SmbClient unknown(445, "no-such-host.invalid");
    EXPECT_NE(textOf(unknown, onShare("log")).find("name is unknown"), std::string::npos)
        << textOf(unknown, onShare("log"));
    EXPECT_NE(textOf(m_client, "\\\\srv01\\None$\\log").find("no such share"), std::string::npos);
    m_client.servers().tryNow();
    EXPECT_NE(textOf(m_client, onShare("none")).find("No such file"), std::string::npos);
    m_samba.kill();
    EXPECT_NE(textOf(m_client, onShare("log")).find("no connection to the server"), std::string::npos);
}

TEST_F(SmbServerTest, ComesBackAfterARestart) {
    EXPECT_TRUE(isThere());
    m_samba.kill();
    EXPECT_FALSE(isThere());
    m_samba.start();
    m_client.letPass(1s);
    EXPECT_TRUE(isThere());
}

TEST_F(SmbServerTest, DoesNotNoticeARestartBetweenTwoRequests) {
    EXPECT_TRUE(isThere());
    m_samba.kill();
    m_samba.start();
    EXPECT_TRUE(isThere());
}

TEST_F(SmbServerTest, DoesNotNoticeACutConnectionBetweenTwoRequests) {
    EXPECT_TRUE(isThere());
    m_samba.cutConnections();
    EXPECT_TRUE(isThere());
}

TEST_F(SmbServerTest, LosesOpenFilesWithTheConnectionAndOpensThemAnew) {
    const auto file = m_client.files().openFile(onShare("log"), OpenMode::Read);
    m_samba.cutConnections();
    std::vector<std::byte> buffer(3);
    EXPECT_ERROR(basic::kDeviceIoError, file->read(0, buffer));
    EXPECT_ERROR(basic::kDeviceIoError, file->read(0, buffer));
    EXPECT_EQ(m_client.files().openFile(onShare("log"), OpenMode::Read)->read(0, buffer), 3U);
}

TEST_F(SmbServerTest, NumbersALostConnectionTheSameWhateverIsAskedOfTheFile) {
    const auto reading = m_client.files().openFile(onShare("log"), OpenMode::Read);
    m_samba.cutConnections();
    EXPECT_ERROR(basic::kDeviceIoError, reading->size());
    const auto writing = m_client.files().openFile(onShare("log"), OpenMode::ReadWrite);
    m_samba.cutConnections();
    EXPECT_ERROR(basic::kDeviceIoError, writing->write(0, bytesOf("new")));
}

TEST_F(SmbServerTest, GivesUpAStoppedServerAtTheDeadlineAndFindsItAgain) {
    EXPECT_TRUE(isThere());
    const pid_t first = m_client.server().helperId();
    ASSERT_GT(first, 0);
    m_samba.pause();
    EXPECT_FALSE(isThere());
    EXPECT_EQ(m_client.server().helperId(), -1);
    EXPECT_NE(::kill(first, 0), 0); // ended and reaped
    m_samba.resume();
    EXPECT_FALSE(isThere()); // not asked: the pause is not over
    EXPECT_EQ(m_client.server().helperId(), -1);
    m_client.letPass(1s);
    EXPECT_TRUE(isThere());
}

// Ten thousand names through a slow line take their time, a dead server must not have as much.
TEST_F(SmbServerTest, HasMoreTimeForAFolderOnceItHasAnswered) {
    NotedWaiter waiter;
    smb::SmbFileSystemObject files(m_client.servers(), waiter);
    files.SubFolders(onShare(""));
    EXPECT_THAT(waiter.allowed, ::testing::ElementsAre(3s, 3s, 30s)) << "log-on, look, list";
}

TEST_F(SmbServerTest, IsGivenUpAtTheDeadlineWhenAFolderIsAskedFor) {
    SmbClient client(m_samba.port(), "127.0.0.1", 300ms);
    NotedWaiter waiter;
    smb::SmbFileSystemObject files(client.servers(), waiter);
    m_samba.pause();
    EXPECT_ERROR(basic::kPathNotFound, files.SubFolders(onShare("")));
    EXPECT_THAT(waiter.allowed, ::testing::ElementsAre(300ms, 300ms));
}

TEST_F(SmbServerTest, IsTriedAtOnceForTheUser) {
    m_samba.pause();
    EXPECT_FALSE(isThere());
    m_samba.resume();
    EXPECT_FALSE(isThere());
    m_client.servers().tryNow();
    EXPECT_TRUE(isThere());
}

TEST_F(SmbServerTest, IsNotWaitedForAtTheEndOfTheProgram) {
    m_samba.pause();
    ThreadWaiter waiter;
    smb::SmbFileSystemObject files(m_client.servers(), waiter);
    waiter.cancel();
    EXPECT_ERROR(basic::kPathNotFound, files.openFile(onShare("log"), OpenMode::Read));
}

TEST_F(SmbServerTest, DoesNotDelayOthersWhenItIsDead) {
    SambaServer healthy;
    healthy.share().makeFile("log", "abc");
    smb::SmbServers servers(
        {.program = smb::helperProgram(),
         .deadline = 60s,
         .spread = [] { return 0.0; },
         .credentials =
             [](const std::string&) { return smb::Credentials::of(SambaServer::kUser, "secret"); }},
        [&](std::string_view server) {
            return smb::ServerAddress{"127.0.0.1", server == "dead" ? m_samba.port() : healthy.port()};
        });
    m_samba.pause();
    ThreadWaiter deadWaiter;
    std::jthread stuck(
        [&] { smb::SmbFileSystemObject(servers, deadWaiter).FileExists("\\\\dead\\Quillamar_0$\\log"); });
    ThreadWaiter waiter;
    EXPECT_TRUE(smb::SmbFileSystemObject(servers, waiter).FileExists("\\\\healthy\\Quillamar_0$\\log"));
    deadWaiter.cancel();
}

TEST_F(SmbServerTest, SurvivesTheEndOfItsProcess) {
    EXPECT_TRUE(isThere());
    const pid_t helper = m_client.server().helperId();
    ASSERT_GT(helper, 0); // everybody would be killed
    ::kill(helper, SIGKILL);
    EXPECT_FALSE(isThere());
    m_client.letPass(1s);
    EXPECT_TRUE(isThere());
}

TEST_F(SmbServerTest, MakesANewConnectionAfterALongRest) {
    EXPECT_TRUE(isThere());
    const pid_t first = m_client.server().helperId();
    m_client.letPass(10s);
    EXPECT_TRUE(isThere());
    EXPECT_EQ(m_client.server().helperId(), first);
    m_client.letPass(8h);
    EXPECT_TRUE(isThere());
    EXPECT_NE(m_client.server().helperId(), first);
}

TEST_F(SmbServerTest, ServesSeveralThreadsOneAfterTheOther) {
    std::vector<std::jthread> threads;
    for (int i = 0; i < 3; ++i)
        threads.emplace_back([this] {
            ThreadWaiter waiter;
            smb::SmbFileSystemObject files(m_client.servers(), waiter);
            for (int round = 0; round < 20; ++round) {
                std::vector<std::byte> buffer(3);
                EXPECT_EQ(files.openFile(onShare("log"), OpenMode::Read)->read(0, buffer), 3U);
            }
        });
}

TEST_F(SmbServerTest, RefusesAProgramThatIsNotThere) {
    ThreadWaiter waiter;
    smb::SmbServers servers({.program = "/nonexistent/qmshare",
                             .spread = [] { return 0.0; },
                             .credentials = [](const std::string&) { return smb::Credentials{}; }},
                            nullptr);
    EXPECT_ERROR(basic::kPathFileAccess,
                 smb::SmbFileSystemObject(servers, waiter).openFile(onShare("log"), OpenMode::Read));
}

} // namespace
} // namespace share::testing
