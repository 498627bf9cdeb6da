// SPDX-FileCopyrightText: 2026 The qmClient authors
// SPDX-License-Identifier: GPL-3.0-or-later
#include "platform/jet/DatabaseBuilder.h"

#include "platform/basic/RuntimeError.h"
#include "platform/jet/ByteEditor.h"
#include "platform/jet/Catalog.h"
#include "platform/jet/DataPageAppend.h"
#include "platform/jet/IndexKey.h"
#include "platform/jet/NameComparison.h"
#include "platform/jet/Rc4.h"
#include "platform/jet/SystemTables.h"
#include "platform/jet/TableDefinitionBuilder.h"
#include "platform/jet/TableDefinitionWriter.h"
#include "platform/jet/TablePlacement.h"
#include "platform/jet/TableWriter.h"

#include <array>
#include <bit>

namespace jet {

using namespace format;

namespace {

// The first 36 bytes of the masked part are the same in every database.
void putMaskedConstant(ByteEditor& page) {
    constexpr std::array<std::uint32_t, 6> kNumbers{0x00000100, 0x00000101, 2, 3, 4, 5};
    for (std::size_t i = 0; i < kNumbers.size(); ++i)
        page.put32(header::kMaskedConstant + 4 * i, kNumbers[i]);
}

// An empty password is the mask itself: the days of the creation date, again and again.
void putNoPassword(ByteEditor& page) {
    const auto mask = static_cast<std::uint32_t>(std::bit_cast<double>(systemTables::kCreationStamp));
    for (std::size_t at = 0; at < header::kPasswordSize; at += sizeof(mask))
        page.put32(header::kPassword + at, mask);
}

void fillHeader(MutablePage bytes) {
    ByteEditor page(bytes);
    page.put32(header::kMagic, header::kMagicValue);
    page.copy(header::kSignature, std::as_bytes(std::span(header::kJetSignature)));
    page.put8(header::kVersion, header::kVersionJet4);
    putMaskedConstant(page);
    page.put16(header::kCodePage, header::kWesternCodePage);
    putNoPassword(page);
    page.put32(header::kBuild, systemTables::kBuild);
    page.put16(header::kSortOrder, header::kGeneralSortOrder);
    page.put64(header::kCreated, systemTables::kCreationStamp);
    applyRc4(header::kMaskKey, bytes.subspan(header::kMasked, header::kMaskedSize));
    page.put32(header::kFormatNumber, header::kFormatNumberValue);
    page.copy(header::kFormatText, std::as_bytes(std::span("4.0")));
    for (std::size_t i = 0; i < commitWords::kCount; ++i)
        page.put16(commitWords::kOffset + 2 * i, commitWords::kInitial);
}

// Row 0 lists the free pages: all that the file may be extended into. Row 1 is empty in every database.
void fillGlobalMap(MutablePage bytes) {
    std::array<std::byte, usageMap::kUsualRowSize> map{};
    const Place place{{}, {}, usageMap::kGlobalPage, kNoRow};
    initialiseDataPage(bytes, 1);
    const BitSpan bits(std::span<std::byte>(map).subspan(usageMap::kBitmap));
    for (PageNumber page = systemTables::kFirstPage; page < usageMap::kUsualInlinePages; ++page)
        bits.set(page, true);
    appendRow(bytes, map, place);
    appendRow(bytes, std::array<std::byte, usageMap::kUsualRowSize>{}, place);
}

void createSystemTables(WriteCache& cache) {
    PageAllocator allocator(cache);
    NewUsageMaps maps(cache, allocator);
    std::vector<TableDefinition> tables = systemTables::definitions();
    for (TableDefinition& table : tables)
        table.pages = {allocator.allocate()};
    for (TableDefinition& table : tables) {
        placeMaps(table, maps);
        placeIndexes(table, maps, cache, allocator);
        storeDefinition(table, cache);
    }
}

void insertAll(share::File& file, PageNumber definitionPage, std::string_view table,
               const std::vector<systemTables::Row>& rows) {
    TableWriter writer(file, definitionPage, table);
    for (const systemTables::Row& row : rows)
        writer.insert(row);
    writer.flush();
}

void insertObjects(share::File& file, const std::vector<systemTables::Row>& rows) {
    insertAll(file, catalog::kDefinitionPage, systemTables::kNames[0], rows);
}

void insertPermissions(share::File& file, const std::vector<systemTables::Row>& rows) {
    insertAll(file, systemTables::kPermissionsPage, systemTables::kNames[1], rows);
}

void refuseExisting(share::File& file, const std::string& table) {
    WriteCache pages(file);
    for (const CatalogEntry& entry : Catalog(pages).tables())
        if (equalNames(entry.name, table))
            throw basic::RuntimeError(basic::kProviderIntegrity, "Table " + table + " already exists");
}

} // namespace

void createDatabase(share::File& file, const basic::Date& created) {
    if (file.size() != 0)
        throw basic::RuntimeError(basic::kProviderFailure, file.name() + ": the file is not empty");
    WriteCache cache(file);
    fillHeader(cache.create(0));
    fillGlobalMap(cache.create(usageMap::kGlobalPage));
    createSystemTables(cache);
    cache.flush();
    insertObjects(file, systemTables::firstObjects(created));
    insertPermissions(file, systemTables::firstPermissions());
}

void createTable(share::File& file, const TableSpec& spec, const basic::Date& created) {
    TableDefinition table = defineTable(spec);
    textWeights(spec.name); // refuses a name that the catalog's index cannot hold
    refuseExisting(file, spec.name);
    WriteCache cache(file);
    PageAllocator allocator(cache);
    const std::size_t pages = definitionPageCount(encodeDefinition(table).size());
    while (table.pages.size() < pages)
        table.pages.push_back(allocator.allocate());
    NewUsageMaps maps(cache, allocator);
    placeMaps(table, maps);
    placeIndexes(table, maps, cache, allocator);
    storeDefinition(table, cache);
    cache.flush();
    insertPermissions(file, systemTables::tablePermissions(table.page()));
    insertObjects(file, {systemTables::tableObject(table.page(), spec.name, created)});
}

} // namespace jet
