// SPDX-FileCopyrightText: 2026 The qmClient authors
// SPDX-License-Identifier: GPL-3.0-or-later
// A change while others use the database or have left their marks in it.

#include "tests/platform/jet/sql/OtherUser.h"

#include "platform/jet/LockFile.h"
#include "tests/platform/jet/sql/ChangeTest.h"

#include <set>

namespace jet::test {
namespace {

using ::testing::HasSubstr;
using OtherUserTest = ChangeTest;

TEST_F(OtherUserTest, SomebodyInsideIsNamedAndNothingIsChanged) {
    const FileImage before = m_database.bytes();
    const OtherUser other(openLockFile(share::OpenMode::Create));
    m_connection.BeginTrans();
    execute(kDelete);
    EXPECT_ERROR(basic::kProviderFailure, m_connection.CommitTrans());
    EXPECT_EQ(m_pauses, 4) << "tried a bounded number of times";
    m_connection.RollbackTrans();
    EXPECT_THAT(failureOf([&] { execute(kDelete); }), HasSubstr("operator on RECEPTION"));
    EXPECT_EQ(m_database.bytes(), before);
}

TEST_F(OtherUserTest, LastOfAllUsersIsNamedToo) {
    const OtherUser other(openLockFile(share::OpenMode::Create), 255);
    EXPECT_THAT(failureOf([&] { execute(kDelete); }), HasSubstr("operator on RECEPTION"));
}

TEST_F(OtherUserTest, BytesOfANameThatAreNoTextAreNotShown) {
    const OtherUser other(openLockFile(share::OpenMode::Create));
    share::LocalFile::open(m_database.lockFilePlace(), share::OpenMode::ReadWrite)
        ->write(2 * 64, std::as_bytes(std::span("R\n\xFC"))); // over the computer's name
    EXPECT_THAT(failureOf([&] { execute(kDelete); }), HasSubstr("operator on R??,"));
}

TEST_F(OtherUserTest, WaitsUntilTheOtherOneLeaves) {
    OtherUser other(openLockFile(share::OpenMode::Create));
    m_onPause = [&] {
        if (m_pauses == 2)
            other.leave();
    };
    execute(kDelete);
    EXPECT_EQ(m_pauses, 2);
    EXPECT_EQ(m_database.rowCount(), 0U);
}

TEST_F(OtherUserTest, FailedCommitCanBeTriedAgainOrGivenUp) {
    OtherUser other(openLockFile(share::OpenMode::Create));
    m_connection.BeginTrans();
    execute(kDelete);
    EXPECT_ERROR(basic::kProviderFailure, m_connection.CommitTrans());
    EXPECT_ERROR(basic::kInTransaction, m_connection.Close());
    other.leave();
    m_connection.CommitTrans();
    EXPECT_EQ(m_database.rowCount(), 0U);
    m_connection.Close();
}

// The server would not know of them, so it could be in the database as well.
TEST_F(OtherUserTest, LocksThatHoldOnThisMachineOnlyAreNone) {
    const FileImage before = m_database.bytes();
    m_database.mountAs("cifs //srv/Quillamar_0$ rw,vers=3.1.1,nobrl");
    EXPECT_THAT(failureOf([&] { execute(kDelete); }), HasSubstr("files cannot be locked there"));
    EXPECT_ERROR(basic::kProviderFailure, execute(kInsert));
    EXPECT_EQ(m_pauses, 0);
    EXPECT_EQ(m_database.bytes(), before);
    EXPECT_EQ(std::get<std::int32_t>(execute("SELECT COUNT(*) FROM CallLog")->Field(0)), kCalls);
    m_database.mountAs("cifs //srv/Quillamar_0$ rw,vers=3.1.1");
    execute(kDelete);
    EXPECT_EQ(m_database.rowCount(), 0U);
}

TEST_F(OtherUserTest, StaleEntryKeepsNobodyOut) {
    {
        OtherUser other(openLockFile(share::OpenMode::Create));
        other.leave();
    }
    execute(kDelete);
    EXPECT_EQ(m_pauses, 0);
    EXPECT_EQ(m_database.rowCount(), 0U);
}

class MarkedDatabase : public ChangeTest, public ::testing::WithParamInterface<std::uint8_t> {};

TEST_P(MarkedDatabase, IsRefused) {
    setWord(5, GetParam());
    const FileImage image = m_database.bytes();
    EXPECT_ERROR(basic::kProviderFailure, execute(kDelete));
    EXPECT_ERROR(basic::kProviderFailure, execute(kInsert));
    EXPECT_THAT(failureOf([&] { execute(kDelete); }), HasSubstr("being written or needs repair"));
    EXPECT_EQ(m_database.bytes(), image);
}

INSTANTIATE_TEST_SUITE_P(Words, MarkedDatabase,
                         ::testing::Values(format::commitWords::kWriting, format::commitWords::kDamaged));

TEST_F(OtherUserTest, DeleteInATransactionWaitsForAWriter) {
    setWord(10, format::commitWords::kWriting);
    m_onPause = [this] {
        if (m_pauses == 3)
            setWord(10, 0x0101);
    };
    Connection connection(m_engine);
    connection.Open(SharedDatabase::kConnection, Purpose::Change);
    connection.BeginTrans();
    connection.Execute(kDelete);
    EXPECT_EQ(m_pauses, 3);
    connection.CommitTrans();
    EXPECT_EQ(m_database.rowCount(), 0U);
}

TEST_F(OtherUserTest, WriterThatDoesNotEndIsToldWhenTheDeleteIsExecuted) {
    setWord(10, format::commitWords::kWriting);
    const FileImage before = m_database.bytes();
    Connection connection(m_engine);
    connection.Open(SharedDatabase::kConnection, Purpose::Change);
    connection.BeginTrans();
    EXPECT_THAT(failureOf([&] { connection.Execute(kDelete); }), HasSubstr("the database is being written"));
    EXPECT_EQ(m_pauses, m_wait.tries - 1) << "as often as a commit tries";
    EXPECT_EQ(m_database.bytes(), before);
}

TEST(SharingWait, PausesDifferWithinTheirLimits) {
    std::set<std::chrono::milliseconds> seen;
    for (int i = 0; i < 200; ++i)
        seen.insert(SharingWait::randomPause());
    EXPECT_GE(*seen.begin(), SharingWait::kShortest);
    EXPECT_LE(*seen.rbegin(), SharingWait::kLongest);
    EXPECT_GT(seen.size(), 20U);
}

TEST(LockFile, HasTheDatabasesNameWithItsOwnEnding) {
    EXPECT_EQ(lockFilePath(R"(\\srv\a.b\qmLog.mdb)"), R"(\\srv\a.b\qmLog.ldb)");
    EXPECT_EQ(lockFilePath(R"(\\srv\a.b\log)"), R"(\\srv\a.b\log.ldb)");
    EXPECT_EQ(lockFilePath("log.mdb"), "log.ldb");
}

} // namespace
} // namespace jet::test
