// SPDX-FileCopyrightText: 2026 The qmClient authors
// SPDX-License-Identifier: GPL-3.0-or-later
#include "tests/platform/registry/RegistryFileTest.h"

#include <fcntl.h>
#include <sys/file.h>
#include <sys/wait.h>
#include <unistd.h>

#include <filesystem>

namespace registry {
namespace {

// One save, with a fault at every system call in turn, until a save gets through without meeting it. Answers
// how many calls that took.
class RegistryFileFaults : public RegistryFileTest {
protected:
    const std::string m_old = RegistryFolder::settings("[K]\n\"a\"=\"1\"\n");
    const std::string m_new = RegistryFolder::settings("[K]\n\"a\"=\"1\"\n\"b\"=\"2\"\n");

    template <typename Check>
    std::size_t forEveryCall(FaultyCalls::Fault fault, int errnoValue, Check&& check) {
        for (std::size_t at = 1;; ++at) {
            RegistryFolder::put(m_path, m_old);
            m_calls.strike(fault, at, errnoValue);
            RegistryFile file(m_calls, {m_path});
            const bool isSaved = failureOf(file, {setText("K", "b", "2")}) == "no failure";
            if (!m_calls.hasStruck())
                return at - 1;
            check(isSaved, m_calls.names.back() + " as call " + std::to_string(at));
        }
    }
};

TEST_F(RegistryFileFaults, WhateverCallFailsTheFileIsTheOldOneOrTheNewOne) {
    for (const int errnoValue : {EIO, ENOSPC, EACCES}) {
        const auto calls =
            forEveryCall(FaultyCalls::Fault::Fail, errnoValue, [&](bool isSaved, const auto& where) {
                const std::string now = content();
                EXPECT_TRUE(now == m_new || (now == m_old && !isSaved)) << where << "\n" << now;
                EXPECT_FALSE(std::filesystem::exists(m_path + ".new")) << where;
            });
        EXPECT_GT(calls, 15U);
    }
}

TEST_F(RegistryFileFaults, WhereverTheProcessDiesTheFileIsTheOldOneOrTheNewOne) {
    for (const auto fault : {FaultyCalls::Fault::DieBefore, FaultyCalls::Fault::DieAfter}) {
        const auto calls = forEveryCall(fault, EIO, [&](bool, const auto& where) {
            const std::string now = content();
            EXPECT_TRUE(now == m_old || now == m_new) << where << "\n" << now;
            RegistryFile next(m_real, {m_path});
            next.change({setText("K", "c", "3")});
            EXPECT_EQ(textAt("K", "a"), "1") << where;
            EXPECT_EQ(textAt("K", "c"), "3") << where;
        });
        EXPECT_GT(calls, 15U);
    }
}

TEST_F(RegistryFileFaults, ACallThatIsInterruptedIsMadeAgain) {
    forEveryCall(FaultyCalls::Fault::Fail, EINTR, [&](bool isSaved, const std::string& where) {
        if (where.starts_with("read ") || where.starts_with("write ") || where.starts_with("flock ")) {
            EXPECT_TRUE(isSaved) << where;
        }
    });
}

TEST_F(RegistryFileFaults, AFullDiskIsNamed) {
    RegistryFolder::put(m_path, m_old);
    m_calls.names.clear();
    m_file.change({setText("K", "b", "2")});
    const auto write = std::find(m_calls.names.begin(), m_calls.names.end(), "write") - m_calls.names.begin();
    m_calls.strike(FaultyCalls::Fault::Fail, static_cast<std::size_t>(write) + 1, ENOSPC);
    try {
        m_file.change({setText("K", "c", "3")});
        ADD_FAILURE() << "no error";
    } catch (const StoreError& error) {
        EXPECT_EQ(error.code(), kDiskFull);
        EXPECT_EQ(error.number(), basic::kPathFileAccess);
        EXPECT_NE(error.description().find("registry.reg.new: No space left"), std::string::npos);
    }
}

TEST_F(RegistryFileTest, WaitsForAnotherWriterAndGivesUpInTheEnd) {
    put("[K]\n");
    const int other = ::open((m_path + ".lock").c_str(), O_RDWR | O_CREAT | O_CLOEXEC, 0600);
    ASSERT_EQ(::flock(other, LOCK_EX), 0);
    EXPECT_NE(failureOf(m_file, {setText("K", "a", "1")}).find("another program"), std::string::npos);
    EXPECT_EQ(m_calls.paused, std::chrono::seconds(2));
    ::close(other);
    EXPECT_EQ(failureOf(m_file, {setText("K", "a", "1")}), "no failure");
}

// In a process of its own: writes `count` values under a key of its own, one save each.
pid_t startWriter(const std::string& path, const std::string& key, int count) {
    const pid_t child = ::fork();
    if (child != 0)
        return child;
    int failures = 0;
    try {
        SystemCalls calls;
        RegistryFile file(calls, {path});
        for (int i = 0; i < count; ++i)
            file.change({setText(key, std::to_string(i), key)});
    } catch (const std::exception&) {
        failures = 1;
    }
    ::_exit(failures);
}

TEST_F(RegistryFileTest, TwoProcessesThatWriteKeepEachOthersKeys) {
    constexpr int kCount = 25;
    const pid_t writers[] = {startWriter(m_path, "One", kCount), startWriter(m_path, "Two", kCount)};
    for (const pid_t writer : writers) {
        int status = -1;
        ASSERT_EQ(::waitpid(writer, &status, 0), writer);
        EXPECT_EQ(status, 0);
    }
    for (int i = 0; i < kCount; ++i) {
        EXPECT_EQ(textAt("One", std::to_string(i)), "One");
        EXPECT_EQ(textAt("Two", std::to_string(i)), "Two");
    }
}

TEST_F(RegistryFileTest, AFileCutAnywhereIsAnErrorOrAPartOfTheTree) {
    const std::string whole =
        RegistryFolder::settings("; said first\n[K\\a]\n\"t\"=\"b\\\\c\"\n\"d\"=dword:0000000a\n"
                                 "[K\\b]\n@=hex(2):01,02,\\\n  03,04\n[-K\\a]\n");
    for (std::size_t length = 0; length < whole.size(); ++length) {
        RegistryFolder::put(m_path, whole.substr(0, length));
        try {
            RegistryFile file(m_real, {m_path});
            const Key& tree = file.tree();
            EXPECT_LE(tree.keys().size(), 1U) << length;
        } catch (const StoreError& error) {
            EXPECT_NE(error.description().find("registry.reg: line "), std::string::npos)
                << error.description();
        }
    }
}

} // namespace
} // namespace registry
