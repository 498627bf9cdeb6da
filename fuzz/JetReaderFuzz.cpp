// SPDX-FileCopyrightText: 2026 The qmClient authors
// SPDX-License-Identifier: GPL-3.0-or-later
// Any bytes as a database: the catalog, every table's definition, count and rows with all values, and the
// check; then each table is emptied in a copy. Whatever is wrong with them must end in a RuntimeError, and a
// database that is sound stays sound.
#include "platform/basic/RuntimeError.h"
#include "platform/jet/Catalog.h"
#include "platform/jet/Checker.h"
#include "platform/jet/Database.h"
#include "platform/jet/TableEmptier.h"
#include "platform/jet/TableScan.h"
#include "platform/jet/ValueDecoder.h"
#include "platform/share/MemoryFile.h"

#include <cstddef>
#include <cstdint>
#include <cstdlib>

namespace {

constexpr std::size_t kMaximumSize = std::size_t{1} << 20U;
constexpr int kMaximumRows = 2000; // rows may share long values, so decoding is bounded by count as well

template <typename Step>
void attempt(Step&& step) {
    try {
        step();
    } catch (const basic::RuntimeError&) { // NOLINT(bugprone-empty-catch): the expected end of bad bytes
    }
}

void readRows(jet::Database& database, const std::string& table) {
    const jet::TableDefinition definition = database.definition(table);
    jet::TableScan scan(database.pages(), definition, table);
    jet::ValueDecoder decoder(database.pages());
    for (int row = 0; row < kMaximumRows && scan.next(); ++row)
        for (const jet::Column& column : definition.columns)
            attempt([&] { decoder.value(scan.row(), column); });
}

void readAll(jet::Database& database) {
    jet::CatalogHint hint;
    for (const jet::CatalogEntry& table : jet::Catalog(database.pages()).tables()) {
        attempt([&] { database.count(table.name, &hint); });
        attempt([&] { database.count(table.name, &hint); });
        attempt([&] { readRows(database, table.name); });
    }
}

bool isSound(const std::vector<std::byte>& bytes) {
    try {
        jet::Database database(std::make_unique<share::MemoryFile>(bytes));
        jet::Checker(database.pages()).run();
        return true;
    } catch (const basic::RuntimeError&) {
        return false;
    }
}

void emptyAll(jet::Database& database, const std::vector<std::byte>& bytes) {
    const bool wasSound = isSound(bytes);
    for (const jet::CatalogEntry& table : jet::Catalog(database.pages()).tables()) {
        share::MemoryFile copy(bytes);
        attempt([&] { jet::TableEmptier(copy, table.name).run([] {}); });
        if (wasSound && !isSound(copy.bytes()))
            std::abort();
    }
}

} // namespace

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
    if (size > kMaximumSize)
        return 0;
    const auto* start = reinterpret_cast<const std::byte*>(data);
    const std::vector<std::byte> bytes(start, start + size);
    attempt([&] {
        jet::Database database(std::make_unique<share::MemoryFile>(bytes));
        attempt([&] { readAll(database); });
        attempt([&] { jet::Checker(database.pages()).run(); });
        attempt([&] { emptyAll(database, bytes); });
    });
    return 0;
}
