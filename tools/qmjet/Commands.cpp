// SPDX-FileCopyrightText: 2026 The qmClient authors
// SPDX-License-Identifier: GPL-3.0-or-later
#include "tools/qmjet/Commands.h"

#include "platform/basic/RuntimeError.h"
#include "platform/jet/Catalog.h"
#include "platform/jet/Checker.h"
#include "platform/jet/Connection.h"
#include "platform/share/LocalFile.h"
#include "tools/qmjet/Csv.h"
#include "tools/qmjet/OneFileSystem.h"

namespace qmjet {
namespace {

std::string typeName(const jet::Column& column) {
    switch (column.type) {
    case jet::ColumnType::Boolean:
        return "boolean";
    case jet::ColumnType::Byte:
        return "byte";
    case jet::ColumnType::Integer:
        return "integer";
    case jet::ColumnType::Long:
        return column.isAutonumber() ? "autonumber" : "long";
    case jet::ColumnType::Currency:
        return "currency";
    case jet::ColumnType::Single:
        return "single";
    case jet::ColumnType::Double:
        return "double";
    case jet::ColumnType::Date:
        return "date";
    case jet::ColumnType::Binary:
        return "binary";
    case jet::ColumnType::Text:
        return "text";
    case jet::ColumnType::Ole:
        return "ole";
    case jet::ColumnType::Memo:
        return "memo";
    case jet::ColumnType::Guid:
        return "guid";
    case jet::ColumnType::Numeric:
        return "numeric";
    }
    return "type " + std::to_string(static_cast<int>(column.type));
}

void printHeader(const jet::Recordset& records, Output& output) {
    CsvLine line;
    for (std::size_t i = 0; i < records.fieldCount(); ++i)
        line.addText(records.fieldName(i));
    output.write(line.take());
}

void printAll(jet::Recordset& records, Output& output) {
    CsvLine line;
    for (; !records.eof(); records.MoveNext()) {
        for (std::size_t i = 0; i < records.fieldCount(); ++i)
            line.add(records.Field(i));
        output.write(line.take());
    }
}

std::string bracketed(const std::string& table) {
    if (table.empty() || table.find(']') != std::string::npos)
        throw basic::RuntimeError(basic::kProviderNoTable, "no table can be named \"" + table + "\"");
    return "[" + table + "]";
}

template <typename Use>
void withRecords(const std::string& path, const std::string& statement, Use&& use) {
    OneFileSystem files(path);
    jet::Engine engine(files);
    jet::Connection connection(engine);
    connection.Open(OneFileSystem::kConnection);
    const auto records = connection.Execute(statement);
    if (records->State() != 0)
        use(*records);
}

} // namespace

void listTables(const std::string& path, bool withSystem, Output& output) {
    jet::Database database(share::LocalFile::open(path, share::OpenMode::Read));
    const jet::Catalog catalog(database.pages());
    for (const jet::CatalogEntry& table : withSystem ? catalog.tables() : catalog.userTables())
        output.write(table.name + "\n");
}

void listColumns(const std::string& path, const std::string& table, Output& output) {
    jet::Database database(share::LocalFile::open(path, share::OpenMode::Read));
    CsvLine line;
    for (const char* title : {"name", "type", "size"})
        line.addText(title);
    output.write(line.take());
    for (const jet::Column& column : database.definition(table).columns) {
        line.addText(column.name);
        line.addText(typeName(column));
        line.add(std::int32_t{column.length});
        output.write(line.take());
    }
}

void countRows(const std::string& path, const std::string& table, Output& output) {
    withRecords(path, "SELECT COUNT(*) FROM " + bracketed(table), [&](jet::Recordset& records) {
        output.write(std::to_string(std::get<std::int32_t>(records.Field(0))) + "\n");
    });
}

void printRows(const std::string& path, const std::string& table, Output& output) {
    execute(path, "SELECT * FROM " + bracketed(table), output);
}

void execute(const std::string& path, const std::string& statement, Output& output) {
    withRecords(path, statement, [&](jet::Recordset& records) {
        printHeader(records, output);
        printAll(records, output);
    });
}

void check(const std::string& path, Output& output) {
    jet::Database database(share::LocalFile::open(path, share::OpenMode::Read));
    const jet::CheckReport report = jet::Checker(database.pages()).run();
    for (const std::string& remark : report.remarks)
        output.write("remark: " + remark + "\n");
    output.write("sound: " + std::to_string(report.tables) + " tables, " + std::to_string(report.rows) +
                 " rows, " + std::to_string(report.longValues) + " long values, " +
                 std::to_string(report.indexes) + " indexes with " + std::to_string(report.indexEntries) +
                 " entries, " + std::to_string(report.usedPages) + " pages in use\n");
}

} // namespace qmjet
