// SPDX-FileCopyrightText: 2026 The qmClient authors
// SPDX-License-Identifier: GPL-3.0-or-later
#include "tools/demo/SeedDatabases.h"

#include "platform/jet/DatabaseBuilder.h"
#include "platform/jet/TableWriter.h"
#include "platform/share/LocalFile.h"

#include <vector>

namespace demo {
namespace {

using basic::Null;
using basic::Variant;
using jet::ColumnType;
using Rows = std::vector<std::vector<Variant>>;

constexpr basic::Date kCreated{38143.5};

struct Seed {
    const char* name;
    jet::TableSpec table; // none without columns
    Rows rows;
};

Seed indexed() {
    return {"index.mdb",
            {.name = "CallLog",
             .columns = {{.name = "ID", .type = ColumnType::Long, .autonumber = true},
                         {.name = "CallID", .type = ColumnType::Text, .size = 50, .compressed = true}},
             .indexes = {{.name = "PrimaryKey", .columns = {{"ID"}}, .primaryKey = true}}},
            {{Null{}, std::string("C1")}, {Null{}, std::string("C20")}, {Null{}, Null{}}}};
}

Seed memos() {
    return {"memo.mdb",
            {.name = "CallLog",
             .columns = {{.name = "CallDetails", .type = ColumnType::Memo, .compressed = true}},
             .indexes = {}},
            {{std::string("in the row")}, {std::string(90, 'a')}, {std::string(2060, 'b')}}};
}

Seed types() {
    return {
        "types.mdb",
        {.name = "CallLog",
         .columns = {{.name = "A", .type = ColumnType::Boolean},
                     {.name = "B", .type = ColumnType::Byte},
                     {.name = "C", .type = ColumnType::Integer},
                     {.name = "D", .type = ColumnType::Currency},
                     {.name = "E", .type = ColumnType::Single},
                     {.name = "F", .type = ColumnType::Double},
                     {.name = "G", .type = ColumnType::Date},
                     {.name = "H", .type = ColumnType::Binary, .size = 8},
                     {.name = "I", .type = ColumnType::Guid},
                     {.name = "J", .type = ColumnType::Numeric, .precision = 10, .scale = 2},
                     {.name = "K", .type = ColumnType::Text, .size = 9}},
         .indexes = {}},
        {{true, std::uint8_t{2}, std::int16_t{-3}, basic::Currency{40000}, 5.5F, 6.5, basic::Date{38143.25},
          basic::Binary{8, 9}, basic::Guid{{10}}, std::int32_t{11}, std::string("Änne 漢")},
         std::vector<Variant>(11, Null{})}};
}

void write(const std::string& folder, const Seed& seed) {
    const auto file = share::LocalFile::open(folder + "/" + seed.name, share::OpenMode::Create);
    jet::createDatabase(*file, kCreated);
    if (seed.table.columns.empty())
        return;
    jet::createTable(*file, seed.table, kCreated);
    jet::TableWriter writer(*file, seed.table.name);
    for (const std::vector<Variant>& row : seed.rows)
        writer.insert(row);
    writer.flush();
}

} // namespace

void writeSeedDatabases(const std::string& folder) {
    write(folder, {"empty.mdb", {}, {}});
    write(folder, indexed());
    write(folder, memos());
    write(folder, types());
}

} // namespace demo
