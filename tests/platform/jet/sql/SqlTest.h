// SPDX-FileCopyrightText: 2026 The qmClient authors
// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once
// A mailbox database in memory and an open connection to it, for the tests of statements.
//
//     ID  CallID  CallDate          CallerID  CallerName  MessageLength  Answered  CallDetails
//     1   A1      2024-05-06 07:08  +4930     Günther Öl  12             True      short
//     2   B2      2024-05-07 00:00  Null      Null        0              False     Null
//     3   c3      Null              ""        O'Neil      Null           True      20,000 times d

#include "platform/jet/Connection.h"
#include "tests/platform/jet/sql/MemoryFileSystem.h"
#include "tests/platform/share/ExpectError.h"

#include <gmock/gmock.h>

#include <string>
#include <vector>

namespace jet::test {

inline constexpr std::string_view kConnectionString =
    "Provider=Microsoft.Jet.OLEDB.4.0;Jet OLEDB:Database Locking Mode=1;Data Source="
    R"(\\srv\Quillamar_0$\MBX\7\qmLog.mdb)";

// The database above with `extraRows` further rows, IDs from 4 on, and the table Empty.
std::vector<std::byte> statementDatabase(int extraRows = 0);

class SqlTest : public ::testing::Test {
protected:
    SqlTest() : SqlTest(0) {}
    explicit SqlTest(int extraRows);

    std::shared_ptr<Recordset> execute(std::string_view statement) { return m_connection.Execute(statement); }
    // The values of one column of all rows as text; Null is "Null".
    std::vector<std::string> column(std::string_view statement, std::size_t index = 0);
    std::vector<std::string> ids(const std::string& condition) {
        return column("SELECT ID FROM CallLog WHERE " + condition);
    }

    MemoryFileSystem m_files;
    std::vector<int> m_pauses;
    Engine m_engine{m_files, [this](int attempt) { m_pauses.push_back(attempt); }};
    Connection m_connection{m_engine};
};

} // namespace jet::test
