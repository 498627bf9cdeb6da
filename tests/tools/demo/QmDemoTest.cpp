// SPDX-FileCopyrightText: 2026 The qmClient authors
// SPDX-License-Identifier: GPL-3.0-or-later
#include "tests/platform/jet/WrittenDatabase.h"

#include <fcntl.h>
#include <gmock/gmock.h>
#include <gtest/gtest.h>
#include <sys/wait.h>
#include <unistd.h>

#include <array>
#include <csignal>
#include <cstdio>
#include <filesystem>

namespace demo {
namespace {

using namespace jet::test;
using share::LocalFile;
using share::OpenMode;
using testing::HasSubstr;

// The real program, its output read through a pipe.
class QmDemo : public testing::Test {
protected:
    void start(std::vector<std::string> arguments) {
        std::array<int, 2> ends{};
        ASSERT_EQ(pipe2(ends.data(), O_CLOEXEC), 0);
        arguments.insert(arguments.begin(), QMDEMO_PATH);
        std::vector<char*> pointers;
        for (std::string& argument : arguments)
            pointers.push_back(argument.data());
        pointers.push_back(nullptr);
        m_process = fork();
        if (m_process == 0) {
            dup2(ends[1], STDOUT_FILENO);
            execv(pointers[0], pointers.data());
            _exit(127);
        }
        close(ends[1]);
        m_output = fdopen(ends[0], "r");
    }
    std::string readLine() {
        std::array<char, 512> line{};
        return std::fgets(line.data(), line.size(), m_output) == nullptr ? "" : line.data();
    }
    // What is left of the output, and the exit status.
    std::pair<std::string, int> finish() {
        std::string text;
        for (std::string line = readLine(); !line.empty(); line = readLine())
            text += line;
        std::fclose(m_output);
        int status = -1;
        waitpid(m_process, &status, 0);
        return {text, WIFEXITED(status) ? WEXITSTATUS(status) : -1};
    }
    std::string database(const std::string& mailbox) const {
        return m_folder.path("MBX/" + mailbox + "/qmLog.mdb");
    }
    std::size_t calls(const std::string& mailbox) const {
        return readRows(*LocalFile::open(database(mailbox), OpenMode::Read), "CallLog").size();
    }

    TemporaryFolder m_folder;
    pid_t m_process = -1;
    std::FILE* m_output = nullptr;
};

TEST_F(QmDemo, MakesTheShareAndAddsCallsByTurns) {
    start({m_folder.path(""), "--calls", "3", "--every", "0"});
    const auto [text, status] = finish();
    EXPECT_EQ(status, 0);
    EXPECT_THAT(text, HasSubstr("mailbox 12: C"));
    EXPECT_THAT(text, HasSubstr("mailbox 15: C"));
    EXPECT_EQ(calls("12"), 14U);
    EXPECT_EQ(calls("15"), 16U);
    EXPECT_NO_THROW(checkDatabase(*LocalFile::open(database("12"), OpenMode::Read)));
}

TEST_F(QmDemo, MakesAMailboxOfItsOwn) {
    start({m_folder.path(""), "--mailbox", "7", "--once"});
    EXPECT_EQ(finish().second, 0);
    EXPECT_EQ(calls("7"), 1U);
    EXPECT_FALSE(std::filesystem::exists(database("12")));
}

TEST_F(QmDemo, EndsCleanlyWhenAsked) {
    for (const int signal : {SIGTERM, SIGINT}) {
        start({m_folder.path(""), "--mailbox", std::to_string(signal), "--every", "3600"});
        EXPECT_THAT(readLine(), HasSubstr("mailbox " + std::to_string(signal)));
        kill(m_process, signal);
        EXPECT_EQ(finish(), (std::pair<std::string, int>{"", 0}));
        EXPECT_EQ(calls(std::to_string(signal)), 1U);
    }
}

TEST_F(QmDemo, TellsFailureFromMisuse) {
    start({"--nonsense"});
    EXPECT_EQ(finish().second, 2);
    start({"/proc/no-such-folder", "--once"});
    EXPECT_EQ(finish().second, 1);
    start({"--help"});
    const auto [text, status] = finish();
    EXPECT_EQ(status, 0);
    EXPECT_THAT(text, HasSubstr("--every SECONDS"));
}

} // namespace
} // namespace demo
