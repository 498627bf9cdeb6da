// SPDX-FileCopyrightText: 2026 The qmClient authors
// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once
// A connection to one database by the provider's connection string. Between two statements it holds no file:
// each statement opens the file, reads what it needs and closes it, so that the server and our own writing
// never meet a handle of ours. Errors: 3704 and 3705 for the wrong state, 3706 for another provider; what
// Execute throws is listed there. The engine must outlive it. One thread at a time.

#include "platform/jet/Engine.h"
#include "platform/jet/Recordset.h"
#include "platform/jet/sql/ChangeRunner.h"

#include <cstdint>
#include <memory>
#include <optional>
#include <string>
#include <string_view>

namespace jet {

// What the statements of a connection are to do with the database.
enum class Purpose { Read, Change };

class Connection {
public:
    explicit Connection(Engine& engine) : m_engine(engine) {}
    Connection(const Connection&) = delete;
    Connection& operator=(const Connection&) = delete;

    // "Provider=Microsoft.Jet.OLEDB.4.0;Data Source=<UNC path>"; refuses a file that cannot be opened or is
    // no Jet 4 database. For a change, a file that somebody else has to himself is not refused: the statement
    // waits for him and, if he does not leave, names him.
    void Open(std::string_view connectionString, Purpose purpose = Purpose::Read);
    void Close();
    // 0 closed, 1 open.
    std::int32_t State() const noexcept { return m_path.empty() ? 0 : 1; }

    // Selects, inserts a row, or deletes all rows of a table; the last two answer a closed record set.
    // -2147217900 syntax, also an unknown column of an INSERT, -2147217865 unknown table, -2147217904 unknown
    // column elsewhere, -2147217913 a value of the wrong kind, -2147217873 a key that is there already,
    // -2147217911 what must not be written, -2147467259 whatever keeps the database from being read or
    // written, somebody else who is in it among that.
    std::shared_ptr<Recordset> Execute(std::string_view statement);

    // One transaction at a time, with one statement that changes rows: it is checked when executed and
    // carried out by the commit, so that nothing is written before. A commit that fails leaves the
    // transaction as it is, to be tried again or given up; one that is never committed is given up. Reading
    // inside of one sees the database without the change.
    void BeginTrans();
    void CommitTrans();
    void RollbackTrans();

private:
    void change(sql::Change statement);
    void requireOpen() const;
    void requireTransaction() const;
    void endTransaction() noexcept;

    Engine& m_engine;
    std::string m_path;
    bool m_inTransaction = false;
    std::optional<sql::Change> m_pending; // the transaction's
};

} // namespace jet
