// SPDX-FileCopyrightText: 2026 The qmClient authors
// SPDX-License-Identifier: GPL-3.0-or-later
#include "platform/jet/SoleUserLock.h"

#include "platform/jet/CommitWordWriter.h"
#include "platform/jet/CommitWords.h"
#include "platform/share/MemoryFile.h"
#include "tests/platform/basic/ErrorOf.h"
#include "tests/platform/jet/WrittenDatabase.h"

#include <gtest/gtest.h>

namespace jet {
namespace {

using namespace test;

class SoleUserLockTest : public testing::Test {
protected:
    std::unique_ptr<share::File> open(share::OpenMode mode) {
        return share::LocalFile::open(m_folder.path("x.ldb"), mode);
    }
    TemporaryFolder m_folder;
};

TEST_F(SoleUserLockTest, KeepsEveryOtherUserOut) {
    const auto ours = open(share::OpenMode::Create);
    const auto others = open(share::OpenMode::ReadWrite);
    {
        const auto lock = SoleUserLock::tryTake(*ours, {"ws1"});
        ASSERT_NE(lock, nullptr);
        EXPECT_EQ(SoleUserLock::tryTake(*others, {"ws2"}), nullptr);
        for (const std::uint64_t user : {1U, 2U, 255U})
            EXPECT_FALSE(others->lock(0x10000000U + user, 1, share::LockKind::Exclusive)) << user;
    }
    EXPECT_NE(SoleUserLock::tryTake(*others, {"ws2"}), nullptr);
}

TEST_F(SoleUserLockTest, IsNotGivenWhileSomebodyIsIn) {
    const auto ours = open(share::OpenMode::Create);
    const auto others = open(share::OpenMode::ReadWrite);
    ASSERT_TRUE(others->lock(0x100000FF, 1, share::LockKind::Exclusive));
    EXPECT_EQ(SoleUserLock::tryTake(*ours, {"ws1"}), nullptr);
}

TEST_F(SoleUserLockTest, WritesAnEntryOfComputerAndUser) {
    share::MemoryFile file{{}};
    const auto lock = SoleUserLock::tryTake(file, {"a-computer-with-a-name-that-is-too-long"});
    ASSERT_EQ(file.size(), 64U);
    const auto* text = reinterpret_cast<const char*>(file.bytes().data());
    EXPECT_EQ(std::string(text), "a-computer-with-a-name-that-is-");
    EXPECT_EQ(std::string(text + 32), "Admin");
}

TEST(CommitWordWriter, CountsUpAndNeverSaysThatItIsWriting) {
    share::MemoryFile file{{}};
    createDatabase(file, kCreated);
    advanceCommitWord(file, 1);
    EXPECT_EQ(CommitWords::read(file).words[1], 0x0101);
    EXPECT_EQ(CommitWords::read(file).words[0], 0x0100);
    EXPECT_EQ(CommitWords::read(file).words[2], 0x0100);
    file.write(format::commitWords::kOffset + 2, std::vector<std::byte>(2, std::byte{0xFF}));
    advanceCommitWord(file, 1);
    EXPECT_EQ(CommitWords::read(file).words[1], 0x0100);
    EXPECT_EQ(basic::errorOf([&] { advanceCommitWord(file, 256); }), basic::kSubscriptOutOfRange);
}

} // namespace
} // namespace jet
