// SPDX-FileCopyrightText: 2026 The qmClient authors
// SPDX-License-Identifier: GPL-3.0-or-later
#include "platform/registry/RegistryFile.h"

#include "platform/registry/KeyPath.h"
#include "platform/registry/ResultCodes.h"
#include "platform/registry/StoreError.h"
#include "tests/platform/registry/FaultyCalls.h"
#include "tests/platform/registry/RegistryFolder.h"

#include <fcntl.h>
#include <gtest/gtest.h>
#include <sys/file.h>
#include <sys/wait.h>
#include <unistd.h>

namespace registry {
namespace {

namespace fs = std::filesystem;

Operation setText(const std::string& path, const std::string& name, const std::string& text) {
    return {Operation::Kind::SetValue, path, Value{name, kRegSz, textData(text)}};
}

class RegistryFileTest : public ::testing::Test {
protected:
    std::string textAt(const std::string& path, const std::string& name) {
        RegistryFile fresh(m_real, {m_path});
        const Key* const key = findPath(fresh.tree(), splitPath(path));
        const Value* const value = key == nullptr ? nullptr : key->findValue(name);
        if (value == nullptr)
            return "(missing)";
        const std::string text = textOf(value->data);
        return text.substr(0, text.find('\0'));
    }
    void put(const std::string& lines) const { RegistryFolder::put(m_path, RegistryFolder::settings(lines)); }
    std::string content() const { return RegistryFolder::content(m_path); }
    mode_t modeOf(const std::string& path) const {
        struct stat status {};
        EXPECT_EQ(::stat(path.c_str(), &status), 0) << path;
        return status.st_mode & 07777;
    }
    static std::string failureOf(RegistryFile& file, const std::vector<Operation>& operations) {
        try {
            file.change(operations);
        } catch (const StoreError& error) {
            return error.description();
        }
        return "no failure";
    }

    RegistryFolder m_folder;
    std::string m_path = m_folder.userFile();
    SystemCalls m_real;
    FaultyCalls m_calls;
    RegistryFile m_file{m_calls, {m_path}};
};

TEST_F(RegistryFileTest, AMissingFileIsAnEmptyTree) {
    EXPECT_TRUE(m_file.tree().keys().empty());
}

TEST_F(RegistryFileTest, ReadsAgainOnlyWhenTheFileChanged) {
    put("[K]\n\"a\"=\"1\"\n");
    EXPECT_NE(m_file.tree().find("K"), nullptr);
    m_calls.names.clear();
    EXPECT_NE(m_file.tree().find("K"), nullptr);
    EXPECT_EQ(m_calls.names, std::vector<std::string>{"stat"});
    put("[Other]\n");
    EXPECT_NE(m_file.tree().find("Other"), nullptr);
    fs::remove(m_path);
    EXPECT_TRUE(m_file.tree().keys().empty());
}

TEST_F(RegistryFileTest, SeesAFileOfTheSameSizePutInItsPlace) {
    put("[K]\n\"a\"=\"1\"\n");
    m_file.tree();
    RegistryFolder::put(m_path + ".2", RegistryFolder::settings("[K]\n\"a\"=\"2\"\n"));
    fs::last_write_time(m_path + ".2", fs::last_write_time(m_path));
    fs::rename(m_path + ".2", m_path);
    EXPECT_EQ(m_file.tree().find("K")->findValue("a")->data, textData("2"));
}

TEST_F(RegistryFileTest, ADamagedFileStaysAnErrorUntilItIsMended) {
    put("[K]\n");
    m_file.tree();
    put("rubbish\n");
    EXPECT_THROW(m_file.tree(), StoreError);
    EXPECT_THROW(m_file.tree(), StoreError);
    put("[L]\n");
    EXPECT_NE(m_file.tree().find("L"), nullptr);
}

TEST_F(RegistryFileTest, ADamagedFileThatIsRemovedLeavesNoOldTreeBehind) {
    put("[K]\n");
    m_file.tree();
    put("rubbish\n");
    EXPECT_THROW(m_file.tree(), StoreError);
    fs::remove(m_path);
    EXPECT_TRUE(m_file.tree().keys().empty());
}

TEST_F(RegistryFileTest, ADamagedFileIsNotReplaced) {
    put("[K]\nrubbish\n");
    const std::string before = content();
    EXPECT_NE(failureOf(m_file, {setText("K", "a", "1")}).find("registry.reg: line 4"), std::string::npos);
    EXPECT_EQ(content(), before);
}

TEST_F(RegistryFileTest, MakesFoldersAndFileForTheirUserAlone) {
    RegistryFile deep(m_calls, {(m_folder.folder() / "a" / "b" / "registry.reg").string()});
    deep.change({setText("K", "a", "1")});
    EXPECT_EQ(modeOf(m_folder.folder() / "a"), 0700U);
    EXPECT_EQ(modeOf(m_folder.folder() / "a" / "b"), 0700U);
    EXPECT_EQ(modeOf(m_folder.folder() / "a" / "b" / "registry.reg"), 0600U);
}

TEST_F(RegistryFileTest, KeepsTheFilesMode) {
    put("[K]\n");
    ::chmod(m_path.c_str(), 0640);
    m_file.change({setText("K", "a", "1")});
    EXPECT_EQ(modeOf(m_path), 0640U);
}

TEST_F(RegistryFileTest, WritesThroughSymbolicLinksAndLeavesThem) {
    const fs::path target = m_folder.folder() / "dotfiles" / "settings.reg";
    RegistryFolder::put(target, RegistryFolder::settings("[K]\n\"a\"=\"1\"\n"));
    fs::create_directories(fs::path(m_path).parent_path());
    fs::create_symlink("../dotfiles/link.reg", m_path);
    fs::create_symlink(target, m_folder.folder() / "dotfiles" / "link.reg");
    m_file.change({setText("K", "b", "2")});
    EXPECT_TRUE(fs::is_symlink(m_path));
    EXPECT_FALSE(fs::is_symlink(target));
    EXPECT_EQ(textAt("K", "a"), "1");
    EXPECT_EQ(textAt("K", "b"), "2");
    EXPECT_NE(RegistryFolder::content(target).find("\"b\"=\"2\""), std::string::npos);
}

TEST_F(RegistryFileTest, WritesThroughALinkToNoFileYet) {
    fs::create_directories(fs::path(m_path).parent_path());
    fs::create_symlink("later.reg", m_path);
    m_file.change({setText("K", "a", "1")});
    EXPECT_TRUE(fs::is_symlink(m_path));
    EXPECT_EQ(textAt("K", "a"), "1");
}

TEST_F(RegistryFileTest, LinksInACircleAreAnError) {
    fs::create_directories(fs::path(m_path).parent_path());
    fs::create_symlink(m_path, m_path + ".x");
    fs::create_symlink(m_path + ".x", m_path);
    EXPECT_NE(failureOf(m_file, {setText("K", "a", "1")}).find("cannot follow"), std::string::npos);
}

TEST_F(RegistryFileTest, AFolderOrPipeInItsPlaceIsAnErrorNotAWait) {
    fs::create_directories(m_path);
    EXPECT_THROW(m_file.tree(), StoreError);
    fs::remove(m_path);
    ASSERT_EQ(::mkfifo(m_path.c_str(), 0600), 0);
    EXPECT_THROW(m_file.tree(), StoreError);
}

TEST_F(RegistryFileTest, BringsTheContentToTheDiskBeforeTheNameAndThenTheName) {
    put("[K]\n");
    m_calls.names.clear();
    m_file.change({setText("K", "a", "1")});
    std::string steps;
    for (const std::string& name : m_calls.names)
        if (name == "write" || name == "fsync" || name == "rename" || name == "flock")
            steps += name + " ";
    EXPECT_EQ(steps, "flock write fsync rename fsync ");
}

TEST_F(RegistryFileTest, ReadsAndWritesThatCarryOneByteEachAreEnough) {
    put("[K]\n\"a\"=\"1\"\n");
    m_calls.most = 1;
    m_file.change({setText("K", "b", "2")});
    EXPECT_EQ(content(), RegistryFolder::settings("[K]\n\"a\"=\"1\"\n\"b\"=\"2\"\n"));
}

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
                EXPECT_FALSE(fs::exists(m_path + ".new")) << where;
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

TEST_F(RegistryFileTest, TakesTheFirstFileThatExists) {
    const std::string second = m_folder.machineFile();
    RegistryFile file(m_calls, {m_path, second});
    EXPECT_TRUE(file.tree().keys().empty());
    RegistryFolder::put(second, RegistryFolder::settings("[Second]\n"));
    EXPECT_NE(file.tree().find("Second"), nullptr);
    put("[First]\n");
    EXPECT_NE(file.tree().find("First"), nullptr);
}

TEST_F(RegistryFileTest, WithoutAnyFolderNothingIsReadOrSaved) {
    RegistryFile file(m_calls, {});
    EXPECT_THROW(file.tree(), StoreError);
    EXPECT_NE(failureOf(file, {setText("K", "a", "1")}).find("no folder for the settings"),
              std::string::npos);
    EXPECT_FALSE(file.isWritable());
}

TEST_F(RegistryFileTest, SettingsTooBigToBeReadAgainAreNotWritten) {
    put("[K]\n");
    const std::string before = content();
    const Value big{"big", kRegBinary, Bytes(6U * 1024 * 1024, 7)};
    EXPECT_NE(failureOf(m_file, {{Operation::Kind::SetValue, "K", big}}), "no failure");
    EXPECT_EQ(content(), before);
}

} // namespace
} // namespace registry
