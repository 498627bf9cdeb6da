// SPDX-FileCopyrightText: 2026 The qmClient authors
// SPDX-License-Identifier: GPL-3.0-or-later
#include "platform/jet/Connection.h"

#include "platform/basic/RuntimeError.h"
#include "platform/jet/ConnectionString.h"
#include "platform/jet/sql/Parser.h"
#include "platform/jet/sql/SelectRunner.h"

#include <utility>

namespace jet {
void Connection::Open(std::string_view connectionString, Purpose purpose) {
    if (State() != 0)
        throw basic::RuntimeError(basic::kObjectOpen);
    std::string path = ConnectionString::parse(connectionString).dataSource();
    if (purpose == Purpose::Change)
        m_engine.checkDatabaseToChange(path);
    else
        m_engine.checkDatabase(path);
    m_path = std::move(path);
}

void Connection::Close() {
    requireOpen();
    if (m_inTransaction)
        throw basic::RuntimeError(basic::kInTransaction);
    m_path.clear();
}

std::shared_ptr<Recordset> Connection::Execute(std::string_view statement) {
    requireOpen();
    sql::Statement parsed = sql::Parser(statement).parse();
    if (auto* select = std::get_if<sql::Select>(&parsed))
        return std::make_shared<Recordset>(sql::SelectRunner(m_engine, m_path).run(std::move(*select)));
    if (auto* insert = std::get_if<sql::Insert>(&parsed))
        change(std::move(*insert));
    else
        change(std::move(std::get<sql::Delete>(parsed)));
    return std::make_shared<Recordset>();
}

void Connection::change(sql::Change statement) {
    if (!m_inTransaction) {
        sql::ChangeRunner(m_engine, m_path).run(statement);
        return;
    }
    if (m_pending)
        throw basic::RuntimeError(basic::kProviderFailure,
                                  "a transaction of this connection takes one statement that changes rows");
    sql::ChangeRunner(m_engine, m_path).check(statement);
    m_pending = std::move(statement);
}

void Connection::BeginTrans() {
    requireOpen();
    if (m_inTransaction)
        throw basic::RuntimeError(basic::kProviderFailure,
                                  "a transaction is active on this connection already");
    m_inTransaction = true;
}

void Connection::CommitTrans() {
    requireTransaction();
    if (m_pending)
        sql::ChangeRunner(m_engine, m_path).run(*m_pending);
    endTransaction();
}

void Connection::RollbackTrans() {
    requireTransaction();
    endTransaction();
}

void Connection::endTransaction() noexcept {
    m_pending.reset();
    m_inTransaction = false;
}

void Connection::requireTransaction() const {
    requireOpen();
    if (!m_inTransaction)
        throw basic::RuntimeError(basic::kProviderFailure, "no transaction is active on this connection");
}

void Connection::requireOpen() const {
    if (State() == 0)
        throw basic::RuntimeError(basic::kObjectClosed);
}

} // namespace jet
