// SPDX-FileCopyrightText: 2026 The qmClient authors
// SPDX-License-Identifier: GPL-3.0-or-later
#include "tools/demo/BenchDatabase.h"

#include "platform/jet/DatabaseBuilder.h"
#include "platform/jet/TableWriter.h"
#include "tools/demo/CallLogTable.h"

namespace demo {
namespace {

constexpr basic::Date kBeginning{45000};
constexpr double kMinute = 1.0 / 1440;
constexpr std::uint32_t kRowsPerFlush = 20000; // keeps the memory small

jet::TableSpec shortTable() {
    return {.name = "CallLog",
            .columns = {{.name = "ID", .type = jet::ColumnType::Long, .autonumber = true},
                        {.name = "CallID", .type = jet::ColumnType::Text, .size = 50, .compressed = true},
                        {.name = "MessageLength", .type = jet::ColumnType::Long}},
            .indexes = {{.name = "PrimaryKey", .columns = {{"ID"}}, .primaryKey = true}}};
}

std::vector<basic::Variant> shortRow(std::uint32_t number) {
    return {basic::Null{}, "C" + std::to_string(number), static_cast<std::int32_t>(number % 60)};
}

} // namespace

void fillBenchDatabase(share::File& file, std::uint32_t rows, BenchRows kind) {
    jet::createDatabase(file, kBeginning);
    jet::createTable(file, kind == BenchRows::Short ? shortTable() : callLogTable(), kBeginning);
    jet::TableWriter writer(file, "CallLog");
    DemoCalls calls(1);
    for (std::uint32_t number = 1; number <= rows; ++number) {
        if (kind == BenchRows::Short)
            writer.insert(shortRow(number));
        else
            writer.insert(callLogRow(calls.make({kBeginning.days + kMinute * number}, number)));
        if (number % kRowsPerFlush == 0)
            writer.flush();
    }
    writer.flush();
}

} // namespace demo
