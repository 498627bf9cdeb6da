// SPDX-FileCopyrightText: 2026 The qmClient authors
// SPDX-License-Identifier: GPL-3.0-or-later
#include "tests/platform/jet/EmptyingScenario.h"

#include "platform/jet/ByteEditor.h"
#include "platform/jet/CommitWordWriter.h"
#include "platform/jet/DataPageAppend.h"
#include "platform/jet/DatabaseBuilder.h"
#include "platform/jet/TableEmptier.h"
#include "platform/jet/TableWriter.h"
#include "platform/jet/UsageMapRow.h"
#include "tests/platform/jet/StoredDefinition.h"
#include "tests/platform/jet/WrittenDatabase.h"
#include "tools/demo/CallLogTable.h"

#include <array>

namespace jet::test {
namespace {

constexpr std::size_t kLongNote = 5000; // a chain over two pages

void fill(share::File& file, int calls, const std::string& prefix) {
    TableWriter writer(file, kLog);
    for (int i = 0; i < calls; ++i)
        writer.insert(anyRow(writer.definition(), prefix + std::to_string(i), i % 3 == 0 ? kLongNote : 10));
    writer.flush();
}

FileImage databaseOf(const TableSpec& log, int calls) {
    share::MemoryFile file{{}};
    createDatabase(file, kCreated);
    createTable(file, log, kCreated);
    createTable(file, demo::mailboxInfoTable(), kCreated);
    TableWriter info(file, "MailboxInfo");
    info.insert(
        std::array<basic::Variant, 3>{std::int32_t{1}, std::string("Sales"), std::string("First floor")});
    info.flush();
    fill(file, calls, "K");
    return file.bytes();
}

TableSpec withColumns(int count, const std::string& name) {
    TableSpec log = demo::callLogTable();
    for (int i = 0; i < count; ++i)
        log.columns.push_back({.name = name + std::to_string(i), .type = ColumnType::Long});
    return log;
}

} // namespace

std::vector<basic::Variant> anyRow(const TableDefinition& log, const std::string& callId, std::size_t note) {
    std::vector<basic::Variant> row(log.columns.size());
    row[1] = callId;
    row[2] = basic::Date{45000.5};
    row[5] = std::int32_t{12};
    row[6] = std::string(note, 'n');
    return row;
}

void addCall(share::File& file, const std::string& callId, std::size_t note) {
    TableWriter writer(file, kLog);
    writer.insert(anyRow(writer.definition(), callId, note));
    writer.flush();
}

FileImage callLogDatabase(int calls) {
    return databaseOf(demo::callLogTable(), calls);
}

FileImage refilledDatabase(int calls) {
    share::MemoryFile file(callLogDatabase(calls));
    emptyLog(file);
    fill(file, calls / 2, "R");
    return file.bytes();
}

FileImage wideDatabase(int calls) {
    return databaseOf(withColumns(20, "Extra"), calls);
}

FileImage twoPageDatabase(int calls) {
    return databaseOf(withColumns(60, "AColumnWithALongNameOfItsOwn"), calls);
}

FileImage threePageDatabase(int calls) {
    return databaseOf(withColumns(120, "AColumnWithALongNameOfItsOwn"), calls);
}

FileImage fullMapDatabase() {
    constexpr PageNumber kPages = 512; // of an inline map
    FileImage image = callLogDatabase(6);
    const auto used = static_cast<PageNumber>(image.size() / format::page::kSize);
    image.resize(std::size_t{kPages} * format::page::kSize);
    share::MemoryFile file(image);
    WriteCache cache(file);
    UsageMapRow map(cache, {format::usageMap::kGlobalPage, format::usageMap::kGlobalRow},
                    WriteStage::GlobalMap);
    for (PageNumber page = used; page < kPages; ++page)
        map.editInlineBits().set(page, false); // pages that are nobody's occur in sound databases
    cache.flush();
    return file.bytes();
}

FileImage leastMapDatabase(int calls) {
    share::MemoryFile file(callLogDatabase(calls));
    const TableDefinition log = definitionOf(file, kLog);
    const RowPointer old = log.longValueMaps.back().owned;
    WriteCache cache(file);
    const PageNumber bitmap = PageAllocator(cache).allocate();
    const BitSpan bits = UsageMapRow::initialiseBitmap(cache.edit(bitmap, WriteStage::NewPage));
    const UsageMap listed = UsageMap::read(cache, old);
    for (const PageNumber page : listed.pages())
        bits.set(page, true);
    std::array<std::byte, format::usageMap::kPointers + format::usageMap::kPointerSize> row{};
    ByteEditor(row).put8(format::usageMap::kType, format::usageMap::kReference);
    ByteEditor(row).put32(format::usageMap::kPointers, bitmap);
    const RowPointer map{old.page, appendRow(cache.edit(old.page, WriteStage::UsageMaps), row, {})};
    constexpr std::size_t kBothPointers = 10; // before the end, behind them the mark of the list's end
    const std::size_t end = ByteView(log.bytes, {}).u32(format::definition::kLength);
    ByteEditor(cache.edit(log.page(), WriteStage::Definition)).put32(end - kBothPointers, map.stored());
    cache.flush();
    return file.bytes();
}

void emptyLog(share::File& file) {
    TableEmptier emptier(file, kLog);
    emptier.run([&] { advanceCommitWord(file, 1); });
}

} // namespace jet::test
