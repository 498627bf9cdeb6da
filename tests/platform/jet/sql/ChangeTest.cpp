// SPDX-FileCopyrightText: 2026 The qmClient authors
// SPDX-License-Identifier: GPL-3.0-or-later
#include "tests/platform/jet/sql/ChangeTest.h"

#include <filesystem>

namespace jet::test {
namespace {

using ::testing::HasSubstr;

TEST_F(ChangeTest, InsertedRowIsReadByPublicTools) {
    const auto records = execute(kInsert);
    EXPECT_EQ(records->State(), 0);
    const std::string json = m_database.json("CallLog");
    EXPECT_THAT(json,
                HasSubstr(R"("ID":21,"CallID":"N1","CallDate":"2024-05-06 07:08:00","CallerID":"+4930")"));
    EXPECT_THAT(json, HasSubstr(R"("MessageLength":12)"));
    EXPECT_TRUE(m_database.isSound());
}

TEST_F(ChangeTest, InsertTellsOtherProgramsAndLetsTheLockGo) {
    const std::uint16_t before = word(1);
    execute(kInsert);
    EXPECT_EQ(word(1), before + 1);
    EXPECT_TRUE(openLockFile(share::OpenMode::ReadWrite)->lock(0x10000001, 255, share::LockKind::Exclusive));
}

TEST_F(ChangeTest, BadInsertHasTheProvidersNumberAndChangesNothing) {
    const FileImage before = m_database.bytes();
    EXPECT_ERROR(basic::kProviderSyntax, execute("INSERT INTO CallLog (Nothing) VALUES (1)"));
    EXPECT_ERROR(basic::kProviderSyntax, execute("INSERT INTO CallLog (CallID, callid) VALUES ('a', 'b')"));
    EXPECT_ERROR(basic::kProviderMismatch, execute("INSERT INTO CallLog (MessageLength) VALUES ('long')"));
    EXPECT_ERROR(basic::kProviderMismatch, execute("INSERT INTO CallLog (CallID) VALUES (7)"));
    EXPECT_ERROR(basic::kProviderFailure, execute("INSERT INTO CallLog (MessageLength) VALUES (3000000000)"));
    EXPECT_ERROR(basic::kProviderIntegrity, execute("INSERT INTO CallLog (CallID) VALUES ('k3')"));
    EXPECT_ERROR(basic::kProviderNoTable, execute("INSERT INTO Nothing (CallID) VALUES ('n')"));
    EXPECT_EQ(m_database.bytes(), before);
    EXPECT_TRUE(openLockFile(share::OpenMode::ReadWrite)->lock(0x10000001, 255, share::LockKind::Exclusive));
}

TEST_F(ChangeTest, DeleteEmptiesTheTable) {
    const std::string info = m_database.json("MailboxInfo");
    const std::uint16_t before = word(1);
    m_connection.BeginTrans();
    EXPECT_EQ(execute(kDelete)->State(), 0);
    m_connection.CommitTrans();
    EXPECT_EQ(std::get<std::int32_t>(execute("SELECT COUNT(*) FROM CallLog")->Field(0)), 0);
    EXPECT_EQ(m_database.json("CallLog"), "");
    EXPECT_EQ(m_database.json("MailboxInfo"), info);
    EXPECT_TRUE(m_database.isSound());
    EXPECT_EQ(word(1), before + 1);
    m_connection.Close();
}

TEST_F(ChangeTest, NothingIsWrittenBeforeTheCommit) {
    const FileImage before = m_database.bytes();
    m_connection.BeginTrans();
    execute(kDelete);
    EXPECT_EQ(m_database.bytes(), before);
    EXPECT_FALSE(std::filesystem::exists(m_database.lockFilePlace()));
    m_connection.RollbackTrans();
    EXPECT_EQ(m_database.bytes(), before);
    m_connection.BeginTrans();
    m_connection.CommitTrans();
    EXPECT_EQ(m_database.bytes(), before);
}

TEST_F(ChangeTest, TransactionThatIsLetGoLeavesTheFileAsItWas) {
    const FileImage before = m_database.bytes();
    {
        Connection connection(m_engine);
        connection.Open(SharedDatabase::kConnection);
        connection.BeginTrans();
        connection.Execute(kDelete);
    }
    EXPECT_EQ(m_database.bytes(), before);
}

TEST_F(ChangeTest, BadStatementInATransactionFailsWhenExecuted) {
    m_connection.BeginTrans();
    EXPECT_ERROR(basic::kProviderNoTable, execute("DELETE FROM Nothing"));
    EXPECT_ERROR(basic::kProviderReadOnly, execute("DELETE FROM MSysObjects"));
    EXPECT_ERROR(basic::kProviderFailure, execute("DELETE FROM CallLog WHERE ID=1"));
    EXPECT_ERROR(basic::kProviderIntegrity, execute("INSERT INTO CallLog (CallID) VALUES ('k3')"));
    execute(kDelete);
    EXPECT_ERROR(basic::kProviderFailure, execute(kInsert)) << "a second change is not taken";
    m_connection.CommitTrans();
    EXPECT_EQ(m_database.rowCount(), 0U);
}

TEST_F(ChangeTest, DeleteOfSomeRowsIsRefusedAndTakesNone) {
    const FileImage before = m_database.bytes();
    EXPECT_ERROR(basic::kProviderFailure, execute("DELETE FROM CallLog WHERE ID=1"));
    EXPECT_EQ(m_database.bytes(), before);
}

TEST_F(ChangeTest, DeleteOfAnEmptyTableWritesNothing) {
    execute(kDelete);
    const FileImage before = m_database.bytes();
    execute(kDelete);
    EXPECT_EQ(m_database.bytes(), before);
}

TEST_F(ChangeTest, FileThatIsNoDatabaseIsRefusedForAChangeToo) {
    m_database.setBytes(FileImage(8192));
    Connection connection(m_engine);
    EXPECT_ERROR(basic::kProviderFailure, connection.Open(SharedDatabase::kConnection, Purpose::Change));
    std::filesystem::remove(m_database.place());
    EXPECT_ERROR(basic::kFileNotFound, connection.Open(SharedDatabase::kConnection, Purpose::Change));
}

} // namespace
} // namespace jet::test
