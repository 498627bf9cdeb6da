// SPDX-FileCopyrightText: 2026 The qmClient authors
// SPDX-License-Identifier: GPL-3.0-or-later
// A server that refuses to open a file for others while somebody changes it.

#include "tests/platform/jet/sql/ChangeTest.h"
#include "tests/platform/jet/sql/OtherUser.h"

#include <filesystem>

namespace jet::test {
namespace {

using ::testing::HasSubstr;

class DenyingServer : public ChangeTest {
protected:
    DenyingServer() {
        m_remote.Open(SharedDatabase::kConnection);
        m_files.opened.clear();
    }

    share::testing::DenyingFileSystem m_files{m_database.files};
    Engine m_remoteEngine{m_files, [](int) {}, m_wait};
    Connection m_remote{m_remoteEngine};
};

TEST_F(DenyingServer, NeedsNoLockFile) {
    const std::uint16_t before = word(0);
    m_remote.Execute(kDelete);
    EXPECT_EQ(m_database.rowCount(), 0U);
    EXPECT_EQ(word(0), before + 1);
    EXPECT_THAT(m_files.opened, ::testing::ElementsAre(SharedDatabase::kPath));
    EXPECT_FALSE(std::filesystem::exists(m_database.lockFilePlace()));
}

TEST_F(DenyingServer, WithoutAnyLocksRefusesAtOnceAndSaysSo) {
    const FileImage before = m_database.bytes();
    m_files.canDeny = false;
    EXPECT_THAT(failureOf([&] { m_remote.Execute(kDelete); }), HasSubstr("files cannot be locked there"));
    EXPECT_EQ(m_pauses, 0);
    EXPECT_EQ(m_database.bytes(), before);
}

TEST_F(DenyingServer, IsAskedAgainWhileSomebodyHasTheFileOpen) {
    m_files.exclusiveRefusals = 3;
    m_remote.Execute(kDelete);
    EXPECT_EQ(m_pauses, 3);
    EXPECT_EQ(m_database.rowCount(), 0U);
}

TEST_F(DenyingServer, SomebodyInsideIsNamedAndNothingIsChanged) {
    const FileImage before = m_database.bytes();
    const OtherUser other(openLockFile(share::OpenMode::Create));
    m_files.exclusiveRefusals = 1000;
    EXPECT_THAT(failureOf([&] { m_remote.Execute(kDelete); }), HasSubstr("operator on RECEPTION"));
    EXPECT_EQ(m_database.bytes(), before);
}

TEST_F(DenyingServer, DeleteInATransactionWaitsForSomebodyWhoHasTheFileAlone) {
    m_remote.BeginTrans();
    m_files.readRefusals = 3;
    m_remote.Execute(kDelete);
    EXPECT_EQ(m_pauses, 3);
    m_files.exclusiveRefusals = 2;
    m_remote.CommitTrans();
    EXPECT_EQ(m_pauses, 5);
    EXPECT_EQ(m_database.rowCount(), 0U);
}

TEST_F(DenyingServer, SomebodyWhoKeepsTheFileAloneIsNamedWhenTheDeleteIsExecuted) {
    const FileImage before = m_database.bytes();
    const OtherUser other(openLockFile(share::OpenMode::Create));
    m_remote.BeginTrans();
    m_files.onlyTheDatabase = SharedDatabase::kPath;
    m_files.readRefusals = 1000;
    EXPECT_THAT(failureOf([&] { m_remote.Execute(kDelete); }), HasSubstr("operator on RECEPTION"));
    EXPECT_EQ(m_pauses, 4) << "as often as a commit tries";
    EXPECT_EQ(m_database.bytes(), before);
}

TEST_F(DenyingServer, FileThatSomebodyHasAloneOpensForAChangeOnly) {
    m_files.readRefusals = 1000;
    Connection connection(m_remoteEngine);
    EXPECT_ERROR(basic::kFileAlreadyOpen, connection.Open(SharedDatabase::kConnection));
    connection.Open(SharedDatabase::kConnection, Purpose::Change);
    m_files.readRefusals = 0;
    connection.Execute(kDelete);
    EXPECT_EQ(m_database.rowCount(), 0U);
}

// Another client deletes for a moment: that is no reason to miss a poll.
TEST_F(DenyingServer, ReadingWaitsForSomebodyWhoHasTheFileAlone) {
    m_files.readRefusals = 2;
    EXPECT_EQ(std::get<std::int32_t>(m_remote.Execute("SELECT COUNT(*) FROM CallLog")->Field(0)), kCalls);
    m_files.readRefusals = 1000;
    EXPECT_ERROR(basic::kFileAlreadyOpen, m_remote.Execute("SELECT COUNT(*) FROM CallLog"));
}

} // namespace
} // namespace jet::test
