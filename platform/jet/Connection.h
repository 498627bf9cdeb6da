// SPDX-FileCopyrightText: 2026 The qmClient authors
// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once
// A connection to one database by the provider's connection string. Between two statements it holds no file:
// each statement opens the file, reads what it needs and closes it, so that the server and our own writing
// never meet a handle of ours. Errors: 3704 and 3705 for the wrong state, 3706 for another provider; what
// Execute throws is listed there. The engine must outlive it. One thread at a time.

#include "platform/jet/Engine.h"
#include "platform/jet/Recordset.h"

#include <cstdint>
#include <memory>
#include <string>
#include <string_view>

namespace jet {

class Connection {
public:
    explicit Connection(Engine& engine) : m_engine(engine) {}
    Connection(const Connection&) = delete;
    Connection& operator=(const Connection&) = delete;

    // "Provider=Microsoft.Jet.OLEDB.4.0;Data Source=<UNC path>"; refuses a file that cannot be opened or is
    // no Jet 4 database.
    void Open(std::string_view connectionString);
    void Close();
    // 0 closed, 1 open.
    std::int32_t State() const noexcept { return m_path.empty() ? 0 : 1; }

    // -2147217900 syntax, -2147217865 unknown table, -2147217904 unknown column, -2147217913 values of
    // different kinds in a condition, -2147467259 whatever keeps the database from being read.
    std::shared_ptr<Recordset> Execute(std::string_view statement);

    // One transaction at a time. Reading inside of one sees what others write.
    void BeginTrans();
    void CommitTrans();
    void RollbackTrans();

private:
    void requireOpen() const;
    void endTransaction();

    Engine& m_engine;
    std::string m_path;
    bool m_inTransaction = false;
};

} // namespace jet
