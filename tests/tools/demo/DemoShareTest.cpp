// SPDX-FileCopyrightText: 2026 The qmClient authors
// SPDX-License-Identifier: GPL-3.0-or-later
#include "tools/demo/DemoShare.h"

#include "platform/jet/CommitWords.h"
#include "platform/jet/SoleUserLock.h"
#include "platform/share/MemoryFile.h"
#include "tests/platform/basic/ErrorOf.h"
#include "tests/platform/jet/WrittenDatabase.h"
#include "tools/demo/BenchDatabase.h"
#include "tools/demo/DemoMailbox.h"
#include "tools/demo/SeedDatabases.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <filesystem>
#include <set>

namespace demo {
namespace {

using namespace jet::test;
using basic::Null;
using share::LocalFile;
using share::OpenMode;

constexpr basic::Date kNow{46347.5};

class DemoShareTest : public testing::Test {
protected:
    DemoShareTest() : m_share(m_folder.path("share")) { createDemoShare(m_share, kNow); }
    std::unique_ptr<share::File> open(int mailbox) {
        return LocalFile::open(mailboxFolder(m_share, mailbox) + "/qmLog.mdb", OpenMode::ReadWrite);
    }
    TemporaryFolder m_folder;
    std::string m_share;
};

TEST_F(DemoShareTest, MailboxesHaveTheirCallsAndDescription) {
    EXPECT_EQ(readRows(*open(12), "CallLog").size(), 12U);
    EXPECT_EQ(readRows(*open(15), "CallLog").size(), 15U);
    EXPECT_EQ(readRows(*open(12), "MailboxInfo"),
              (std::vector<Values>{
                  {std::int32_t{1}, std::string("Sales"), std::string("Calls for sales, ground floor")}}));
    EXPECT_NO_THROW(checkDatabase(*open(12)));
    EXPECT_NO_THROW(checkDatabase(*open(15)));
}

TEST_F(DemoShareTest, EveryMessageHasASoundFileOfItsLengthAndNoOtherCallHasOne) {
    for (const int mailbox : {12, 15}) {
        std::size_t messages = 0;
        for (const Values& row : readRows(*open(mailbox), "CallLog")) {
            const std::string path =
                mailboxFolder(m_share, mailbox) + "/" + std::get<std::string>(row[1]) + ".wav";
            const auto seconds = static_cast<std::size_t>(std::get<std::int32_t>(row[5]));
            ASSERT_EQ(std::filesystem::exists(path), seconds > 0) << path;
            if (seconds == 0)
                continue;
            ++messages;
            const std::size_t size = std::filesystem::file_size(path) - 44;
            EXPECT_TRUE(size == seconds * 8000 || size == seconds * 16000) << path;
        }
        EXPECT_GT(messages, 4U);
    }
}

TEST_F(DemoShareTest, CallsAscendInTimeAndShowEveryCase) {
    bool hasNoName = false, hasNoMessage = false, hasLongDetails = false, hasUmlaut = false;
    for (const int mailbox : {12, 15}) {
        double last = 0;
        for (const Values& row : readRows(*open(mailbox), "CallLog")) {
            const std::string& id = std::get<std::string>(row[1]);
            EXPECT_TRUE(std::ranges::all_of(id, [](unsigned char c) { return std::isalnum(c) != 0; })) << id;
            const double date = std::get<basic::Date>(row[2]).days;
            EXPECT_GT(date, last);
            EXPECT_LT(date, kNow.days);
            last = date;
            hasNoName |= basic::isNull(row[4]);
            hasUmlaut |=
                !basic::isNull(row[4]) && std::get<std::string>(row[4]).find("ü") != std::string::npos;
            hasNoMessage |= std::get<std::int32_t>(row[5]) == 0;
            hasLongDetails |= !basic::isNull(row[6]) && std::get<std::string>(row[6]).size() > 1024;
        }
    }
    EXPECT_TRUE(hasNoName);
    EXPECT_TRUE(hasNoMessage);
    EXPECT_TRUE(hasLongDetails);
    EXPECT_TRUE(hasUmlaut);
}

TEST_F(DemoShareTest, FolderThatHasAMailboxIsLeftAlone) {
    std::filesystem::remove_all(mailboxFolder(m_share, 12));
    EXPECT_EQ(basic::errorOf([&] { createDemoShare(m_share, kNow); }), basic::kPathFileAccess);
    EXPECT_FALSE(std::filesystem::exists(mailboxFolder(m_share, 12)));
    EXPECT_EQ(readRows(*open(15), "CallLog").size(), 15U);
}

TEST_F(DemoShareTest, AppendingTellsOtherProgramsAndLetsTheLockGo) {
    const auto file = open(12);
    const std::uint16_t before = jet::CommitWords::read(*file).words[jet::SoleUserLock::kNumber];
    const Call call = DemoCalls(1).make(kNow, 9);
    DemoMailbox(mailboxFolder(m_share, 12)).append(std::span(&call, 1));
    EXPECT_EQ(jet::CommitWords::read(*file).words[jet::SoleUserLock::kNumber], before + 1);
    EXPECT_EQ(std::get<std::string>(readRows(*file, "CallLog").back()[1]), call.callId);
    const auto lockFile = LocalFile::open(mailboxFolder(m_share, 12) + "/qmLog.ldb", OpenMode::ReadWrite);
    EXPECT_TRUE(lockFile->lock(0x10000001, 255, share::LockKind::Exclusive));
}

TEST_F(DemoShareTest, FailedAppendListsNoCall) {
    const Call call = DemoCalls(1).make(kNow, 9);
    const DemoMailbox mailbox(mailboxFolder(m_share, 12));
    mailbox.append(std::span(&call, 1));
    EXPECT_EQ(basic::errorOf([&] { mailbox.append(std::span(&call, 1)); }), basic::kProviderIntegrity);
    EXPECT_EQ(readRows(*open(12), "CallLog").size(), 13U);
}

TEST(BenchDatabase, RowsAreAllThere) {
    for (const BenchRows kind : {BenchRows::Short, BenchRows::Calls}) {
        share::MemoryFile file{{}};
        fillBenchDatabase(file, 500, kind);
        EXPECT_EQ(storedCount(file, "CallLog"), 500U);
        EXPECT_EQ(readRows(file, "CallLog").size(), 500U);
        EXPECT_NO_THROW(checkDatabase(file));
    }
}

TEST(SeedDatabases, AreSmallAndWhole) {
    TemporaryFolder folder;
    std::filesystem::create_directory(folder.path("seeds"));
    writeSeedDatabases(folder.path("seeds"));
    std::size_t count = 0;
    for (const auto& entry : std::filesystem::directory_iterator(folder.path("seeds"))) {
        ++count;
        EXPECT_LE(entry.file_size(), 84U * 1024U) << entry.path();
        EXPECT_NO_THROW(checkDatabase(*LocalFile::open(entry.path().string(), OpenMode::Read)));
    }
    EXPECT_EQ(count, 4U);
}

} // namespace
} // namespace demo
