// SPDX-FileCopyrightText: 2026 The qmClient authors
// SPDX-License-Identifier: GPL-3.0-or-later
#include "bench/OurTable.h"

#include "platform/basic/DateTimeFormat.h"
#include "platform/basic/VariantText.h"

namespace bench {
namespace {

share::ShareResolver mappedTo(const std::string& folder) {
    return {[folder](std::string_view) { return folder; }, [] { return std::string(); }};
}

std::size_t sizeOfText(const basic::Variant& value, const basic::DateTimeFormat& format) {
    return basic::isNull(value) ? 0 : basic::toText(value, format).size();
}

} // namespace

std::string connectionTo(const std::string& path) {
    return "Provider=Microsoft.Jet.OLEDB.4.0;Jet OLEDB:Database Locking Mode=1;Data Source=" + path;
}

std::int64_t countCalls(jet::Engine& engine, const std::string& connectionString) {
    jet::Connection connection(engine);
    connection.Open(connectionString);
    const auto rows = connection.Execute("SELECT COUNT(*) FROM CallLog");
    return std::get<std::int32_t>(rows->Field(0));
}

std::size_t readForList(jet::Engine& engine, const std::string& connectionString) {
    jet::Connection connection(engine);
    connection.Open(connectionString);
    const auto rows =
        connection.Execute("SELECT *, MessageLength & 's' AS MessageLengthS FROM CallLog ORDER BY ID DESC");
    const basic::DateTimeFormat format;
    std::size_t total = 0;
    for (; !rows->eof(); rows->MoveNext()) {
        for (const char* column : {"CallID", "CallDate", "CallerID", "CallerName", "MessageLengthS"})
            total += sizeOfText(rows->Field(column), format);
    }
    return total;
}

OurTable::OurTable(const std::string& folder, const std::string& file)
    : m_connectionString(connectionTo("\\\\bench\\Quillamar_0$\\" + file)), m_files(mappedTo(folder)),
      m_engine(m_files) {}

void OurTable::deleteAll() {
    jet::Connection connection(m_engine);
    connection.Open(m_connectionString);
    connection.BeginTrans();
    connection.Execute("DELETE FROM CallLog");
    connection.CommitTrans();
}

std::size_t OurTable::readAll() {
    jet::Connection connection(m_engine);
    connection.Open(m_connectionString);
    const auto rows = connection.Execute("SELECT * FROM CallLog");
    const basic::DateTimeFormat format;
    std::size_t total = 0;
    for (; !rows->eof(); rows->MoveNext()) {
        for (std::size_t column = 0; column < rows->fieldCount(); ++column)
            total += sizeOfText(rows->Field(column), format);
    }
    return total;
}

} // namespace bench
