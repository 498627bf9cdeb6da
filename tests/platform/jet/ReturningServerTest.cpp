// SPDX-FileCopyrightText: 2026 The qmClient authors
// SPDX-License-Identifier: GPL-3.0-or-later
// A server that starts anew while a mailbox is opened and read: its files are away for a moment.
#include "platform/share/ConnectionLost.h"
#include "tests/platform/jet/sql/SqlTest.h"

namespace jet::test {
namespace {

constexpr std::string_view kCount = "SELECT COUNT(*) FROM CallLog";

class ReturningServerTest : public testing::Test {
protected:
    static constexpr int kTries = 5;

    // Loses the connection at the next read.
    void loseConnection(int openingsWithoutServer) {
        m_files.beforeRead = [=, this](int) {
            m_files.beforeRead = nullptr;
            m_files.failures = openingsWithoutServer;
            throw share::ConnectionLost("gone");
        };
    }
    void open() { m_connection.Open(kConnectionString); }
    std::int32_t count() { return std::get<std::int32_t>(m_connection.Execute(kCount)->Field(0)); }

    MemoryFileSystem m_files;
    int m_waits = 0;
    Engine m_engine{m_files, [](int) {}, {.tries = kTries, .sleep = [this](auto) { ++m_waits; }}};
    Connection m_connection{m_engine};

    ReturningServerTest() { m_files.bytes = statementDatabase(); }
};

TEST_F(ReturningServerTest, IsWaitedForBetweenOpeningAndTheFirstStatement) {
    open();
    m_files.failures = kTries - 1;
    EXPECT_EQ(count(), 3);
    EXPECT_EQ(m_waits, kTries - 1);
}

TEST_F(ReturningServerTest, IsWaitedForWhenTheConnectionWasLostInAStatement) {
    open();
    count();
    loseConnection(kTries - 1);
    EXPECT_EQ(count(), 3);
    EXPECT_EQ(m_waits, kTries - 1);
}

TEST_F(ReturningServerTest, IsWaitedForWhenTheConnectionWasLostInOpening) {
    loseConnection(kTries - 1);
    open();
    EXPECT_EQ(m_connection.State(), 1);
    EXPECT_EQ(m_waits, kTries - 1);
}

TEST_F(ReturningServerTest, IsAnErrorWhenItDoesNotReturn) {
    open();
    m_files.failures = kTries;
    EXPECT_ERROR(basic::kPathNotFound, count());
    EXPECT_EQ(m_waits, kTries - 1);
    EXPECT_EQ(m_files.failures, 0);
}

// Long after the opening nobody knows whether the server ever comes back.
TEST_F(ReturningServerTest, IsNotWaitedForByLaterStatements) {
    open();
    count();
    m_files.failures = 1;
    EXPECT_ERROR(basic::kPathNotFound, count());
    EXPECT_EQ(m_waits, 0);
}

TEST_F(ReturningServerTest, IsNotWaitedForToOpen) {
    m_files.failures = 1;
    EXPECT_ERROR(basic::kPathNotFound, open());
    EXPECT_EQ(m_waits, 0);
}

TEST_F(ReturningServerTest, IsNotTakenForAFileThatIsGone) {
    open();
    m_files.failures = 1;
    m_files.failure = basic::kFileNotFound;
    EXPECT_ERROR(basic::kFileNotFound, count());
    EXPECT_EQ(m_waits, 0);
}

} // namespace
} // namespace jet::test
