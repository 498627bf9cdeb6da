// SPDX-FileCopyrightText: 2026 The qmClient authors
// SPDX-License-Identifier: GPL-3.0-or-later
#include "errors/ErrorLog.h"

#include "platform/basic/RuntimeError.h"
#include "tests/errors/DiskSync.h"
#include "tests/errors/WorkingFolder.h"

#include <fcntl.h>
#include <gtest/gtest.h>
#include <sys/resource.h>
#include <sys/stat.h>
#include <sys/wait.h>
#include <unistd.h>

#include <array>
#include <csignal>
#include <map>

namespace errors {
namespace {

namespace fs = std::filesystem;

class ErrorLogTest : public ::testing::Test {
protected:
    std::string fallback() const { return (m_state.path() / "Corvantis" / "Quillamar").string(); }
    ErrorLog log() const { return {"qmClient.log", fallback()}; }
    fs::path inFallback() const { return fs::path(fallback()) / "qmClient.log"; }
    fs::path inWorkingFolder() const { return m_working.path() / "qmClient.log"; }

    WorkingFolder m_state;
    WorkingFolder m_working; // the later one is the working directory
};

TEST_F(ErrorLogTest, LiesInTheWorkingDirectory) {
    log().open().append("record\r\n");
    EXPECT_EQ(contentOf(inWorkingFolder()), "record\r\n");
    EXPECT_FALSE(fs::exists(inFallback()));
}

TEST_F(ErrorLogTest, AppendsToWhatIsThere) {
    std::ofstream(inWorkingFolder()) << "before\r\n";
    log().open().append("one\r\n");
    log().open().append("two\r\n");
    EXPECT_EQ(contentOf(inWorkingFolder()), "before\r\none\r\ntwo\r\n");
}

TEST_F(ErrorLogTest, IsReadableByItsOwnerOnly) {
    log().open();
    EXPECT_EQ(fs::status(inWorkingFolder()).permissions(), fs::perms::owner_read | fs::perms::owner_write);
}

TEST_F(ErrorLogTest, FallsBackToTheStateFolderWhereTheWorkingDirectoryTakesNoFile) {
    fs::current_path("/proc"); // takes no files from anybody, root included
    log().open().append("record\r\n");
    EXPECT_EQ(contentOf(inFallback()), "record\r\n");
}

TEST_F(ErrorLogTest, FallsBackWhenTheWorkingDirectoryIsGone) {
    fs::create_directory(m_working.path() / "gone");
    fs::current_path(m_working.path() / "gone");
    fs::remove(m_working.path() / "gone");
    log().open().append("record\r\n");
    EXPECT_EQ(contentOf(inFallback()), "record\r\n");
}

TEST_F(ErrorLogTest, NeverWaitsForAPipeNorFollowsALinkUnderItsName) {
    ASSERT_EQ(::mkfifo(inWorkingFolder().c_str(), 0600), 0);
    log().open().append("one\r\n");
    const int reader = ::open(inWorkingFolder().c_str(), O_RDONLY | O_NONBLOCK | O_CLOEXEC);
    log().open().append("one more\r\n");
    ::close(reader);
    fs::remove(inWorkingFolder());
    fs::create_symlink(m_working.path() / "elsewhere", inWorkingFolder());
    log().open().append("two\r\n");
    EXPECT_EQ(contentOf(inFallback()), "one\r\none more\r\ntwo\r\n");
    EXPECT_FALSE(fs::exists(m_working.path() / "elsewhere"));
}

TEST_F(ErrorLogTest, WithoutAnyPlaceTheFailureNamesTheFile) {
    fs::current_path("/proc");
    try {
        ErrorLog("qmClient.log", "").open();
        FAIL() << "opened";
    } catch (const basic::RuntimeError& error) {
        EXPECT_NE(error.description().find("qmClient.log"), std::string::npos) << error.description();
    }
    EXPECT_THROW(ErrorLog("qmClient.log", "/proc/nowhere").open(), basic::RuntimeError);
}

// No file of this process grows beyond so many bytes.
class FileSizeLimit {
public:
    explicit FileSizeLimit(rlim_t bytes) {
        ::signal(SIGXFSZ, SIG_IGN);
        EXPECT_EQ(::getrlimit(RLIMIT_FSIZE, &m_before), 0);
        const rlimit limited{bytes, m_before.rlim_max};
        EXPECT_EQ(::setrlimit(RLIMIT_FSIZE, &limited), 0);
    }
    FileSizeLimit(const FileSizeLimit&) = delete;
    FileSizeLimit& operator=(const FileSizeLimit&) = delete;
    ~FileSizeLimit() { ::setrlimit(RLIMIT_FSIZE, &m_before); }

private:
    rlimit m_before{};
};

std::int32_t numberOfAppend(LogFile& log) {
    try {
        log.append("record\r\n");
    } catch (const basic::RuntimeError& error) {
        EXPECT_NE(error.description().find("qmClient.log"), std::string::npos) << error.description();
        return error.number();
    }
    return 0;
}

TEST_F(ErrorLogTest, AWriteThatFailsIsAnErrorAndNotSilence) {
    LogFile log(inWorkingFolder().string());
    const FileSizeLimit none(0);
    EXPECT_EQ(numberOfAppend(log), basic::kPathFileAccess);
}

TEST_F(ErrorLogTest, ARecordThatFitsOnlyInPartIsAnErrorAndItsRestIsNotSentAfterIt) {
    LogFile log(inWorkingFolder().string());
    const FileSizeLimit some(3);
    EXPECT_EQ(numberOfAppend(log), basic::kDiskFull);
    EXPECT_EQ(contentOf(inWorkingFolder()), "rec");
}

TEST_F(ErrorLogTest, ARecordThatCannotBeWrittenThroughIsAnError) {
    LogFile log(inWorkingFolder().string());
    const DiskSync disk(DiskSync::Outcome::Fails);
    EXPECT_EQ(numberOfAppend(log), basic::kDeviceIoError);
}

// Appends `count` copies of one long line in a process of its own.
pid_t appendInAnotherProcess(const ErrorLog& log, char letter, int count) {
    const pid_t child = ::fork();
    if (child == 0) {
        for (int i = 0; i < count; ++i)
            log.open().append(std::string(3000, letter) + "\r\n");
        ::_exit(0);
    }
    return child;
}

TEST_F(ErrorLogTest, SeveralClientsNeverMixTheirRecords) {
    constexpr int kEach = 40;
    std::array<pid_t, 3> children{};
    for (std::size_t i = 0; i < children.size(); ++i)
        children[i] = appendInAnotherProcess(log(), static_cast<char>('a' + i), kEach);
    for (const pid_t child : children) {
        int status = -1;
        ASSERT_EQ(::waitpid(child, &status, 0), child);
        ASSERT_EQ(status, 0);
    }
    std::istringstream lines(contentOf(inWorkingFolder()));
    std::map<std::string, int> seen;
    for (std::string line; std::getline(lines, line);)
        ++seen[line];
    ASSERT_EQ(seen.size(), children.size());
    for (const auto& [line, count] : seen)
        EXPECT_EQ(count, kEach);
}

TEST(BaseName, HasNeitherDirectoryNorExtension) {
    EXPECT_EQ(baseNameOf("qmClient"), "qmClient");
    EXPECT_EQ(baseNameOf("/usr/bin/qmClient"), "qmClient");
    EXPECT_EQ(baseNameOf("qmClient.exe"), "qmClient");
    EXPECT_EQ(baseNameOf("/opt/quillamar 1.0/qmClient.exe"), "qmClient");
}

class StateFolder : public ::testing::Test {
protected:
    StateFolder() {
        ::setenv("HOME", "/home/somebody", 1);
        ::unsetenv("XDG_STATE_HOME");
    }
    ~StateFolder() override { m_home.empty() ? ::unsetenv("HOME") : ::setenv("HOME", m_home.c_str(), 1); }

private:
    std::string m_home = std::getenv("HOME") ? std::getenv("HOME") : "";
};

TEST_F(StateFolder, IsTheConfiguredOneWhenThatIsAbsolute) {
    ::setenv("XDG_STATE_HOME", "/var/state", 1);
    EXPECT_EQ(stateFolder(), "/var/state/Corvantis/Quillamar");
    ::setenv("XDG_STATE_HOME", "relative", 1);
    EXPECT_EQ(stateFolder(), "/home/somebody/.local/state/Corvantis/Quillamar");
}

TEST_F(StateFolder, LiesInTheHomeDirectoryOtherwise) {
    EXPECT_EQ(stateFolder(), "/home/somebody/.local/state/Corvantis/Quillamar");
}

TEST_F(StateFolder, IsEmptyWithoutAHomeDirectory) {
    ::unsetenv("HOME");
    EXPECT_EQ(stateFolder(), "");
}

} // namespace
} // namespace errors
