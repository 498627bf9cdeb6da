// SPDX-FileCopyrightText: 2026 The qmClient authors
// SPDX-License-Identifier: GPL-3.0-or-later
#include "tests/platform/jet/sql/SqlTest.h"

#include <utility>

namespace jet::test {
namespace {

using ::testing::ElementsAre;
using ::testing::IsEmpty;
using ConnectionTest = SqlTest;

constexpr std::size_t kWriterWord = 0xE02; // the commit word of the first shared user
constexpr std::string_view kCount = "SELECT COUNT(*) FROM CallLog";

std::int32_t countIn(const std::shared_ptr<Recordset>& records) {
    return std::get<std::int32_t>(records->Field(0));
}

TEST_F(ConnectionTest, StateFollowsOpenAndClose) {
    Connection connection(m_engine);
    EXPECT_EQ(connection.State(), 0);
    connection.Open(kConnectionString);
    EXPECT_EQ(connection.State(), 1);
    connection.Close();
    EXPECT_EQ(connection.State(), 0);
}

TEST_F(ConnectionTest, WrongStateIsRefused) {
    Connection closed(m_engine);
    EXPECT_ERROR(basic::kObjectClosed, closed.Execute(kCount));
    EXPECT_ERROR(basic::kObjectClosed, closed.Close());
    EXPECT_ERROR(basic::kObjectClosed, closed.BeginTrans());
    EXPECT_ERROR(basic::kObjectClosed, closed.CommitTrans());
    EXPECT_ERROR(basic::kObjectOpen, m_connection.Open(kConnectionString));
}

TEST_F(ConnectionTest, TransactionsComeOneAtATime) {
    EXPECT_ERROR(basic::kProviderFailure, m_connection.CommitTrans());
    EXPECT_ERROR(basic::kProviderFailure, m_connection.RollbackTrans());
    m_connection.BeginTrans();
    EXPECT_ERROR(basic::kProviderFailure, m_connection.BeginTrans());
    EXPECT_EQ(countIn(execute(kCount)), 3);
    EXPECT_ERROR(basic::kInTransaction, m_connection.Close());
    m_connection.CommitTrans();
    m_connection.BeginTrans();
    m_connection.RollbackTrans();
    m_connection.Close();
}

TEST_F(ConnectionTest, OpenRefusesAMissingFileAndWhatIsNoDatabase) {
    Connection connection(m_engine);
    EXPECT_ERROR(basic::kFileNotFound,
                 connection.Open("Provider=Microsoft.Jet.OLEDB.4.0;Data Source=\\\\x\\y\\z"));
    m_files.bytes.assign(4096, std::byte{0x20});
    EXPECT_ERROR(basic::kProviderFailure, connection.Open(kConnectionString));
    m_files.bytes.clear();
    EXPECT_ERROR(basic::kProviderFailure, connection.Open(kConnectionString));
    EXPECT_EQ(connection.State(), 0);
}

TEST_F(ConnectionTest, UnknownProviderAndBadStringsAreRefused) {
    Connection connection(m_engine);
    EXPECT_ERROR(basic::kProviderNotFound, connection.Open(""));
    EXPECT_ERROR(basic::kProviderNotFound, connection.Open("Data Source=x"));
    EXPECT_ERROR(basic::kProviderNotFound, connection.Open("Provider=SQLOLEDB;Data Source=x"));
    for (const char* rest : {"", "Data Source=", "Data Source=x;Mode=1", "x", "=x", "Data Source='x",
                             "Data Source='x'y", "Data Source=x;Jet OLEDB:Database Locking Mode=2"})
        EXPECT_ERROR(basic::kProviderFailure,
                     connection.Open("Provider=Microsoft.Jet.OLEDB.4.0;" + std::string(rest)))
            << rest;
}

TEST_F(ConnectionTest, ConnectionStringAllowsBlanksQuotesAndAnyCase) {
    Connection connection(m_engine);
    connection.Open(" provider = microsoft.jet.oledb.4.0 ; data SOURCE = \"" +
                    std::string(MemoryFileSystem::kDatabase) + "\" ; ");
    EXPECT_EQ(connection.State(), 1);
}

TEST_F(ConnectionTest, HoldsNoFileBetweenStatements) {
    EXPECT_EQ(m_files.open, 0);
    const auto records = execute("SELECT * FROM CallLog");
    EXPECT_EQ(m_files.open, 0);
    EXPECT_EQ(records->Field("CallID"), basic::Variant(std::string("A1")));
    EXPECT_ERROR(basic::kProviderNoTable, execute("SELECT * FROM None"));
    EXPECT_EQ(m_files.open, 0);
}

TEST_F(ConnectionTest, RecordsOutliveTheDatabaseAndTheConnection) {
    auto connection = std::make_unique<Connection>(m_engine);
    connection->Open(kConnectionString);
    const auto records = connection->Execute("SELECT * FROM CallLog ORDER BY ID DESC");
    connection.reset();
    m_files.bytes.clear();
    EXPECT_EQ(records->Field("CallDetails"), basic::Variant(std::string(20'000, 'd')));
}

TEST_F(ConnectionTest, RowOfACallOutlivesTheDatabaseToo) {
    const auto records = execute("SELECT * FROM CallLog WHERE CallID='c3'");
    m_files.bytes.clear();
    EXPECT_EQ(records->Field("CallDetails"), basic::Variant(std::string(20'000, 'd')));
}

TEST_F(ConnectionTest, CountCostsFourReadsWhateverTheNumberOfRows) {
    execute(kCount);
    m_files.reads = 0;
    EXPECT_EQ(countIn(execute(kCount)), 3);
    EXPECT_EQ(std::exchange(m_files.reads, 0), 4);
    m_files.bytes = statementDatabase(3000);
    execute(kCount);
    m_files.reads = 0;
    EXPECT_EQ(countIn(execute(kCount)), 3003);
    EXPECT_EQ(m_files.reads, 4);
}

// The header for opening; the header, the catalog's row, the head of the definition and the commit words for
// counting.
TEST_F(ConnectionTest, PollReadsNoMoreThanFourPages) {
    execute(kCount); // the first poll learns where the table is
    m_files.reads = 0;
    m_files.bytesRead = 0;
    Connection connection(m_engine);
    connection.Open(kConnectionString);
    EXPECT_EQ(countIn(connection.Execute(kCount)), 3);
    EXPECT_LE(m_files.bytesRead, 4 * format::page::kSize);
    EXPECT_EQ(m_files.bytesRead,
              3 * format::page::kSize + format::definition::kFixedSize + format::commitWords::kSize);
    EXPECT_EQ(m_files.reads, 5);
}

TEST_F(ConnectionTest, OpenRefusesADatabaseWhoseWriterDoesNotEnd) {
    m_files.setWord(kWriterWord, 0);
    Connection connection(m_engine);
    EXPECT_ERROR(basic::kProviderFailure, connection.Open(kConnectionString));
    EXPECT_THAT(m_pauses, ElementsAre(1, 2, 3, 4));
    EXPECT_EQ(m_files.open, 0);
}

TEST_F(ConnectionTest, OpenRefusesADatabaseThatIsCutShort) {
    m_files.bytes.resize(4095);
    Connection connection(m_engine);
    EXPECT_ERROR(basic::kProviderFailure, connection.Open(kConnectionString));
}

TEST_F(ConnectionTest, ChangeOnAShareWithoutALockFileIsAnErrorAndChangesNothing) {
    const std::vector<std::byte> before = m_files.bytes;
    EXPECT_ERROR(basic::kFileNotFound, execute("DELETE FROM CallLog"));
    EXPECT_ERROR(basic::kFileNotFound, execute("INSERT INTO CallLog (CallID) VALUES ('n')"));
    EXPECT_EQ(m_files.bytes, before);
    EXPECT_EQ(m_files.open, 0);
}

TEST_F(ConnectionTest, StatementIsRepeatedWhenTheServerWroteMeanwhile) {
    m_files.beforeRead = [this](int) {
        if (m_pauses.empty())
            m_files.setWord(kWriterWord, static_cast<std::uint16_t>(m_files.word(kWriterWord) + 1));
    };
    EXPECT_EQ(countIn(execute(kCount)), 3);
    EXPECT_THAT(m_pauses, ElementsAre(1));
    EXPECT_EQ(m_files.open, 0);
}

TEST_F(ConnectionTest, TornPagesAreReadAgain) {
    const std::vector<std::byte> sound = m_files.bytes;
    std::fill(m_files.bytes.begin() + 4096, m_files.bytes.end(), std::byte{0});
    m_files.beforeRead = [&](int) {
        if (m_pauses.size() == 2)
            m_files.bytes = sound;
    };
    EXPECT_EQ(execute("SELECT ID FROM CallLog")->Field(0), basic::Variant(std::int32_t{1}));
    EXPECT_THAT(m_pauses, ElementsAre(1, 2));
}

TEST_F(ConnectionTest, DamageThatStaysIsAnErrorAfterAllTries) {
    std::fill(m_files.bytes.begin() + 4096, m_files.bytes.end(), std::byte{0});
    EXPECT_ERROR(basic::kProviderFailure, execute(kCount));
    EXPECT_THAT(m_pauses, ElementsAre(1, 2, 3, 4));
}

TEST_F(ConnectionTest, EndlessWritingEndsInABusyErrorAndNeverInACount) {
    m_files.setWord(kWriterWord, 0); // its owner is writing
    EXPECT_ERROR(basic::kProviderFailure, execute(kCount));
    EXPECT_THAT(m_pauses, ElementsAre(1, 2, 3, 4));
    EXPECT_EQ(m_files.open, 0);
}

TEST_F(ConnectionTest, UnknownTableIsBelievedAtOnceWhenNobodyWrites) {
    EXPECT_ERROR(basic::kProviderNoTable, execute("SELECT * FROM None"));
    EXPECT_THAT(m_pauses, IsEmpty());
}

TEST_F(ConnectionTest, SyntaxErrorNeedsNoFile) {
    const int opened = m_files.opened;
    EXPECT_ERROR(basic::kProviderSyntax, execute("SELECT"));
    EXPECT_EQ(m_files.opened, opened);
}

class FailingRead : public SqlTest, public ::testing::WithParamInterface<const char*> {};

TEST_P(FailingRead, IsAnErrorWhicheverItIs) {
    execute(GetParam());
    m_files.reads = 0;
    execute(GetParam());
    const int reads = m_files.reads;
    for (int failing = 1; failing <= reads; ++failing) {
        m_files.reads = 0;
        m_files.beforeRead = [failing](int read) {
            if (read == failing)
                throw basic::RuntimeError(basic::kDeviceIoError);
        };
        EXPECT_ERROR(basic::kDeviceIoError, execute(GetParam())) << failing;
        EXPECT_EQ(m_files.open, 0);
    }
}

INSTANTIATE_TEST_SUITE_P(Statements, FailingRead,
                         ::testing::Values("SELECT COUNT(*) FROM CallLog", "SELECT * FROM CallLog",
                                           "SELECT * FROM CallLog WHERE CallID='c3'"));

} // namespace
} // namespace jet::test
