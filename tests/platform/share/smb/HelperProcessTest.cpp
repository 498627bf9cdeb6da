// SPDX-FileCopyrightText: 2026 The qmClient authors
// SPDX-License-Identifier: GPL-3.0-or-later
#include "platform/share/smb/HelperProcess.h"

#include "platform/share/smb/MessageEncoder.h"
#include "tests/platform/share/smb/SmbTest.h"

#include <fcntl.h>
#include <sys/prctl.h>
#include <sys/wait.h>
#include <unistd.h>

#include <array>
#include <cerrno>
#include <csignal>
#include <fstream>
#include <iterator>

namespace share::testing {
namespace {

std::string contentOf(const std::string& path) {
    std::ifstream stream(path, std::ios::binary);
    return {std::istreambuf_iterator<char>(stream), std::istreambuf_iterator<char>()};
}

std::string procFile(pid_t id, std::string_view name) {
    return contentOf("/proc/" + std::to_string(id) + "/" + std::string(name));
}

// A client in a process of its own that runs `work` and then waits to be killed. Tells its helper's number.
class KilledClient {
public:
    template <typename Work>
    explicit KilledClient(Work&& work) {
        ::prctl(PR_SET_CHILD_SUBREAPER, 1, 0, 0, 0); // its helper becomes our child when it is gone
        std::array<int, 2> pipe{};
        if (::pipe(pipe.data()) != 0)
            throw std::runtime_error("pipe");
        m_client = ::fork();
        if (m_client == 0)
            run(pipe[1], work);
        ::close(pipe[1]);
        if (::read(pipe[0], &m_helper, sizeof m_helper) != sizeof m_helper)
            throw std::runtime_error("the client told nothing");
        ::close(pipe[0]);
    }

    // Returns when both are gone, the helper's status; a helper that stays hangs the test.
    int killAndReap() const {
        if (m_client > 0)
            ::kill(m_client, SIGKILL);
        while (::waitpid(m_client, nullptr, 0) < 0 && errno == EINTR) {
        }
        int status = 0;
        while (::waitpid(m_helper, &status, 0) < 0 && errno == EINTR) {
        }
        return status;
    }
    pid_t helper() const noexcept { return m_helper; }

private:
    template <typename Work>
    [[noreturn]] static void run(int pipe, Work&& work) {
        smb::HelperProcess helper(smb::helperProgram());
        work(helper);
        const pid_t id = helper.id();
        if (::write(pipe, &id, sizeof id) != sizeof id)
            ::_exit(1);
        for (;;)
            ::pause();
    }

    pid_t m_client = -1;
    pid_t m_helper = -1;
};

bool isGone(pid_t id) {
    return ::kill(id, 0) != 0 && errno == ESRCH;
}

TEST(HelperProcess, EndsWithAClientThatIsKilled) {
    const KilledClient client([](smb::HelperProcess&) {});
    client.killAndReap();
    EXPECT_TRUE(isGone(client.helper()));
}

TEST(HelperProcess, EndsWithAClientThatIsKilledWhileTheServerHangs) {
    SambaServer samba;
    samba.pause();
    const KilledClient client([&samba](smb::HelperProcess& helper) {
        ThreadWaiter waiter;
        helper.socket().send(smb::encode(smb::Request{.verb = smb::Verb::LogOn,
                                                      .length = samba.port(),
                                                      .path = "127.0.0.1",
                                                      .data = std::vector<std::byte>(12)}));
        helper.socket().receive();
        helper.socket().send(smb::encode(smb::Request{.verb = smb::Verb::Stat, .path = onShare("x")}));
        // Taken by the helper, which is in the library from now on.
        EXPECT_EQ(waiter.untilReadable(helper.socket().descriptor(), std::chrono::milliseconds(200)),
                  Waited::TimeOver);
    });
    const int status = client.killAndReap();
    // Not at the end of the library's own patience: the loss of the client ended it.
    EXPECT_TRUE(WIFEXITED(status));
    EXPECT_EQ(WEXITSTATUS(status), smb::kEndedWithClient);
}

TEST(HelperProcess, EndsAtOnceWithItsObject) {
    pid_t id = -1;
    {
        const smb::HelperProcess helper(smb::helperProgram());
        id = helper.id();
        EXPECT_FALSE(isGone(id));
    }
    EXPECT_TRUE(isGone(id));
}

TEST(HelperProcess, EndsWhenItIsSentNonsense) {
    smb::HelperProcess helper(smb::helperProgram());
    helper.socket().send(bytesOf("nonsense"));
    EXPECT_EQ(helper.socket().receive(), std::nullopt);
}

TEST(HelperProcess, EndsWhenItIsAskedBeforeTheLogOn) {
    smb::HelperProcess helper(smb::helperProgram());
    helper.socket().send(smb::encode(smb::Request{.verb = smb::Verb::Stat, .path = onShare("x")}));
    EXPECT_EQ(helper.socket().receive(), std::nullopt);
}

TEST(HelperProcess, IsNoUseWithoutAClient) {
    const int status = std::system((smb::helperProgram() + " 2>/dev/null 3</dev/null").c_str());
    EXPECT_EQ(WEXITSTATUS(status), 2);
}

TEST(HelperProcess, KeepsPasswordsOutOfListsEnvironmentAndCoreFiles) {
    SambaServer samba({.password = "hunter2"});
    SmbClient client(samba.port());
    client.password = "hunter2";
    EXPECT_TRUE(client.files().FolderExists(onShare("")));
    const pid_t id = client.server().helperId();
    EXPECT_EQ(procFile(id, "cmdline"), std::string("qmshare\0", 8));
    EXPECT_EQ(procFile(id, "environ").find("hunter2"), std::string::npos);
    EXPECT_NE(procFile(id, "limits").find("Max core file size        0                    0"),
              std::string::npos);
}

TEST(HelperProcess, InheritsNothingButItsConnection) {
    std::array<int, 2> pipe{};
    ASSERT_EQ(::pipe(pipe.data()), 0); // without close-on-exec, as a library might leave one
    constexpr int kBeyondItsOwn = 20;  // a low number is taken over by its connection anyway
    const int writing = ::fcntl(pipe[1], F_DUPFD, kBeyondItsOwn);
    ::close(pipe[1]);
    const smb::HelperProcess helper(smb::helperProgram());
    ::close(writing);
    char byte = 0;
    EXPECT_EQ(::read(pipe[0], &byte, 1), 0); // nobody else has the writing end
    ::close(pipe[0]);
}

} // namespace
} // namespace share::testing
