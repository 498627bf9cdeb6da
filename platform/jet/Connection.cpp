// SPDX-FileCopyrightText: 2026 The qmClient authors
// SPDX-License-Identifier: GPL-3.0-or-later
#include "platform/jet/Connection.h"

#include "platform/basic/RuntimeError.h"
#include "platform/jet/ConnectionString.h"
#include "platform/jet/sql/Parser.h"
#include "platform/jet/sql/SelectRunner.h"

#include <utility>

namespace jet {
namespace {

[[noreturn]] void refuseToChange(const std::string& path, std::string_view verb, const std::string& table) {
    throw basic::RuntimeError(basic::kProviderFailure,
                              path + ", table " + table + ": this connection cannot " + std::string(verb));
}

} // namespace

void Connection::Open(std::string_view connectionString) {
    if (State() != 0)
        throw basic::RuntimeError(basic::kObjectOpen);
    std::string path = ConnectionString::parse(connectionString).dataSource();
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
        refuseToChange(m_path, "insert", insert->table);
    refuseToChange(m_path, "delete", std::get<sql::Delete>(parsed).table);
}

void Connection::BeginTrans() {
    requireOpen();
    if (m_inTransaction)
        throw basic::RuntimeError(basic::kProviderFailure,
                                  "a transaction is active on this connection already");
    m_inTransaction = true;
}

void Connection::CommitTrans() {
    endTransaction();
}

void Connection::RollbackTrans() {
    endTransaction();
}

void Connection::endTransaction() {
    requireOpen();
    if (!m_inTransaction)
        throw basic::RuntimeError(basic::kProviderFailure, "no transaction is active on this connection");
    m_inTransaction = false;
}

void Connection::requireOpen() const {
    if (State() == 0)
        throw basic::RuntimeError(basic::kObjectClosed);
}

} // namespace jet
