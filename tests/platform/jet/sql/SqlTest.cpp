// SPDX-FileCopyrightText: 2026 The qmClient authors
// SPDX-License-Identifier: GPL-3.0-or-later
#include "tests/platform/jet/sql/SqlTest.h"

#include "platform/basic/Calendar.h"
#include "platform/basic/VariantText.h"
#include "platform/jet/DatabaseBuilder.h"
#include "platform/jet/TableWriter.h"
#include "platform/share/MemoryFile.h"

namespace jet::test {
namespace {

constexpr basic::Date kMadeOn{45000};

using Row = std::vector<basic::Variant>;

std::vector<Row> fixedRows() {
    const auto text = [](const char* value) { return basic::Variant(std::string(value)); };
    const basic::Null null;
    return {
        {null, text("A1"), basic::toDate({2024, 5, 6, 7, 8, 0}), text("+4930"), text("Günther Öl"),
         std::int32_t{12}, true, text("short")},
        {null, text("B2"), basic::toDate({2024, 5, 7, 0, 0, 0}), null, null, std::int32_t{0}, false, null},
        {null, text("c3"), null, text(""), text("O'Neil"), null, true, std::string(20'000, 'd')}};
}

TableSpec logSpec() {
    const auto text = [](const char* name) {
        return ColumnSpec{.name = name, .type = ColumnType::Text, .size = 50, .compressed = true};
    };
    return {.name = "CallLog",
            .columns = {{.name = "ID", .type = ColumnType::Long, .autonumber = true},
                        text("CallID"),
                        {.name = "CallDate", .type = ColumnType::Date},
                        text("CallerID"),
                        text("CallerName"),
                        {.name = "MessageLength", .type = ColumnType::Long},
                        {.name = "Answered", .type = ColumnType::Boolean},
                        {.name = "CallDetails", .type = ColumnType::Memo, .compressed = true}},
            .indexes = {{.name = "PrimaryKey", .columns = {{"ID"}}, .primaryKey = true}}};
}

} // namespace

std::vector<std::byte> statementDatabase(int extraRows) {
    share::MemoryFile file({});
    createDatabase(file, kMadeOn);
    createTable(file, logSpec(), kMadeOn);
    createTable(file, {.name = "Empty", .columns = {{.name = "ID", .type = ColumnType::Long}}, .indexes = {}},
                kMadeOn);
    TableWriter writer(file, "CallLog");
    for (const Row& row : fixedRows())
        writer.insert(row);
    const basic::Null null;
    for (int id = 4; id < 4 + extraRows; ++id)
        writer.insert(Row{null, "X" + std::to_string(id), null, null, null, std::int32_t{1}, false, null});
    writer.flush();
    return file.bytes();
}

SqlTest::SqlTest(int extraRows) {
    m_files.bytes = statementDatabase(extraRows);
    m_connection.Open(kConnectionString);
}

std::vector<std::string> SqlTest::column(std::string_view statement, std::size_t index) {
    std::vector<std::string> values;
    const auto records = execute(statement);
    for (; !records->eof(); records->MoveNext()) {
        const basic::Variant value = records->Field(index);
        values.push_back(basic::isNull(value) ? "Null" : basic::toText(value, basic::DateTimeFormat()));
    }
    return values;
}

} // namespace jet::test
