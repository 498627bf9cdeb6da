// SPDX-FileCopyrightText: 2026 The qmClient authors
// SPDX-License-Identifier: GPL-3.0-or-later
#include "platform/jet/ByteEditor.h"
#include "platform/jet/CommitWords.h"
#include "platform/jet/LockFile.h"
#include "tests/platform/jet/sql/SharedDatabase.h"
#include "tests/platform/share/ExpectError.h"

#include <gmock/gmock.h>

#include <filesystem>
#include <set>

namespace jet::test {
namespace {

using ::testing::HasSubstr;
using ::testing::IsEmpty;
using ::testing::Not;

constexpr std::string_view kDelete = "DELETE FROM CallLog";
constexpr std::string_view kInsert = "INSERT INTO CallLog (CallID, CallDate, CallerID, MessageLength) VALUES "
                                     "('N1', #5/6/2024 7:08#, '+4930', 12)";
constexpr int kCalls = 20;

class ChangeTest : public ::testing::Test {
protected:
    ChangeTest() { m_connection.Open(SharedDatabase::kConnection); }

    std::shared_ptr<Recordset> execute(std::string_view statement) { return m_connection.Execute(statement); }
    std::string failureOf(std::string_view statement) {
        try {
            execute(statement);
        } catch (const basic::RuntimeError& error) {
            return error.description();
        }
        return {};
    }
    std::uint16_t word(std::size_t user) const {
        const auto file = share::LocalFile::open(m_database.place(), share::OpenMode::Read);
        return CommitWords::read(*file).words[user];
    }
    void setWord(std::size_t user, std::uint16_t word) const {
        FileImage image = m_database.bytes();
        ByteEditor(image).put16(format::commitWords::kOffset + 2 * user, word);
        m_database.setBytes(image);
    }
    std::unique_ptr<share::File> openLockFile(share::OpenMode mode) const {
        return share::LocalFile::open(m_database.lockFilePlace(), mode);
    }

    SharedDatabase m_database{callLogDatabase(kCalls)};
    int m_pauses = 0;
    std::function<void()> m_onPause = [] {};
    SharingWait m_wait{.tries = 5, .sleep = [this](std::chrono::milliseconds) {
                           ++m_pauses;
                           m_onPause();
                       }};
    Engine m_engine{m_database.files, [](int) {}, m_wait};
    Connection m_connection{m_engine};
};

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

class OtherUser {
public:
    explicit OtherUser(std::unique_ptr<share::File> lockFile, std::size_t user = 3)
        : m_file(std::move(lockFile)) {
        std::array<std::byte, 64> entry{};
        std::ranges::copy(std::as_bytes(std::span("RECEPTION")), entry.begin());
        std::ranges::copy(std::as_bytes(std::span("operator")), entry.begin() + 32);
        m_file->write((user - 1) * entry.size(), entry);
        EXPECT_TRUE(m_file->lock(0x10000000 + user, 1, share::LockKind::Exclusive));
    }
    void leave() { m_file.reset(); }

private:
    std::unique_ptr<share::File> m_file;
};

TEST_F(ChangeTest, SomebodyInsideIsNamedAndNothingIsChanged) {
    const FileImage before = m_database.bytes();
    const OtherUser other(openLockFile(share::OpenMode::Create));
    m_connection.BeginTrans();
    execute(kDelete);
    EXPECT_ERROR(basic::kProviderFailure, m_connection.CommitTrans());
    EXPECT_EQ(m_pauses, 4) << "tried a bounded number of times";
    m_connection.RollbackTrans();
    EXPECT_THAT(failureOf(kDelete), HasSubstr("operator on RECEPTION"));
    EXPECT_EQ(m_database.bytes(), before);
}

TEST_F(ChangeTest, LastOfAllUsersIsNamedToo) {
    const OtherUser other(openLockFile(share::OpenMode::Create), 255);
    EXPECT_THAT(failureOf(kDelete), HasSubstr("operator on RECEPTION"));
}

TEST_F(ChangeTest, BytesOfANameThatAreNoTextAreNotShown) {
    const OtherUser other(openLockFile(share::OpenMode::Create));
    share::LocalFile::open(m_database.lockFilePlace(), share::OpenMode::ReadWrite)
        ->write(2 * 64, std::as_bytes(std::span("R\n\xFC"))); // over the computer's name
    EXPECT_THAT(failureOf(kDelete), HasSubstr("operator on R??,"));
}

TEST(SharingWait, PausesDifferWithinTheirLimits) {
    std::set<std::chrono::milliseconds> seen;
    for (int i = 0; i < 200; ++i)
        seen.insert(SharingWait::randomPause());
    EXPECT_GE(*seen.begin(), SharingWait::kShortest);
    EXPECT_LE(*seen.rbegin(), SharingWait::kLongest);
    EXPECT_GT(seen.size(), 20U);
}

TEST_F(ChangeTest, WaitsUntilTheOtherOneLeaves) {
    OtherUser other(openLockFile(share::OpenMode::Create));
    m_onPause = [&] {
        if (m_pauses == 2)
            other.leave();
    };
    execute(kDelete);
    EXPECT_EQ(m_pauses, 2);
    EXPECT_EQ(m_database.rowCount(), 0U);
}

TEST_F(ChangeTest, FailedCommitCanBeTriedAgainOrGivenUp) {
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

TEST_F(ChangeTest, StaleEntryKeepsNobodyOut) {
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
    EXPECT_THAT(failureOf(kDelete), HasSubstr("being written or needs repair"));
    EXPECT_EQ(m_database.bytes(), image);
}

INSTANTIATE_TEST_SUITE_P(Words, MarkedDatabase,
                         ::testing::Values(format::commitWords::kWriting, format::commitWords::kDamaged));

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
    try {
        m_remote.Execute(kDelete);
        FAIL();
    } catch (const basic::RuntimeError& error) {
        EXPECT_EQ(error.number(), basic::kProviderFailure);
        EXPECT_THAT(error.description(), HasSubstr("files cannot be locked there"));
    }
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
    try {
        m_remote.Execute(kDelete);
        FAIL();
    } catch (const basic::RuntimeError& error) {
        EXPECT_EQ(error.number(), basic::kProviderFailure);
        EXPECT_THAT(error.description(), HasSubstr("operator on RECEPTION"));
    }
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
    try {
        m_remote.Execute(kDelete);
        FAIL();
    } catch (const basic::RuntimeError& error) {
        EXPECT_EQ(error.number(), basic::kProviderFailure);
        EXPECT_THAT(error.description(), HasSubstr("operator on RECEPTION"));
    }
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

TEST_F(ChangeTest, FileThatIsNoDatabaseIsRefusedForAChangeToo) {
    m_database.setBytes(FileImage(8192));
    Connection connection(m_engine);
    EXPECT_ERROR(basic::kProviderFailure, connection.Open(SharedDatabase::kConnection, Purpose::Change));
    std::filesystem::remove(m_database.place());
    EXPECT_ERROR(basic::kFileNotFound, connection.Open(SharedDatabase::kConnection, Purpose::Change));
}

TEST_F(ChangeTest, DeleteInATransactionWaitsForAWriter) {
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

TEST_F(ChangeTest, WriterThatDoesNotEndIsToldWhenTheDeleteIsExecuted) {
    setWord(10, format::commitWords::kWriting);
    const FileImage before = m_database.bytes();
    Connection connection(m_engine);
    connection.Open(SharedDatabase::kConnection, Purpose::Change);
    connection.BeginTrans();
    try {
        connection.Execute(kDelete);
        FAIL();
    } catch (const basic::RuntimeError& error) {
        EXPECT_EQ(error.number(), basic::kProviderFailure);
        EXPECT_THAT(error.description(), HasSubstr("the database is being written"));
    }
    EXPECT_EQ(m_pauses, m_wait.tries - 1) << "as often as a commit tries";
    EXPECT_EQ(m_database.bytes(), before);
}

// Another client deletes for a moment: that is no reason to miss a poll.
TEST_F(DenyingServer, ReadingWaitsForSomebodyWhoHasTheFileAlone) {
    m_files.readRefusals = 2;
    EXPECT_EQ(std::get<std::int32_t>(m_remote.Execute("SELECT COUNT(*) FROM CallLog")->Field(0)), kCalls);
    m_files.readRefusals = 1000;
    EXPECT_ERROR(basic::kFileAlreadyOpen, m_remote.Execute("SELECT COUNT(*) FROM CallLog"));
}

TEST(LockFile, HasTheDatabasesNameWithItsOwnEnding) {
    EXPECT_EQ(lockFilePath(R"(\\srv\a.b\qmLog.mdb)"), R"(\\srv\a.b\qmLog.ldb)");
    EXPECT_EQ(lockFilePath(R"(\\srv\a.b\log)"), R"(\\srv\a.b\log.ldb)");
    EXPECT_EQ(lockFilePath("log.mdb"), "log.ldb");
}

} // namespace
} // namespace jet::test
