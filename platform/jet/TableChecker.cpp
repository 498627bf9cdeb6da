// SPDX-FileCopyrightText: 2026 The qmClient authors
// SPDX-License-Identifier: GPL-3.0-or-later
#include "platform/jet/TableChecker.h"

#include "platform/jet/IndexChecker.h"
#include "platform/jet/LongValueReader.h"
#include "platform/jet/TableDefinitionReader.h"
#include "platform/jet/TableScan.h"
#include "platform/jet/ValueDecoder.h"
#include "platform/jet/VisitedPages.h"

#include <algorithm>

namespace jet {

void TableChecker::check(PageNumber definitionPage, const std::string& name) {
    m_name = name;
    m_table = TableDefinitionReader(m_source).read(definitionPage, m_name);
    for (const PageNumber page : m_table.pages)
        m_ledger.enter(page, "the definition of " + m_name);
    const UsageMap owned = enterMap(m_table.ownedMap);
    enterPages(owned, "rows of " + m_name);
    const UsageMap withSpace = enterMap(m_table.freeMap);
    for (const PageNumber page : withSpace.pagesWithinFile()) {
        if (!owned.contains(page))
            placeOf(page).fail("the page is listed as having space, but not as the table's");
    }
    checkDataPages(owned);
    checkRows();
    for (const Column& column : m_table.columns) {
        if (column.isLongValue())
            checkLongValues(column);
    }
    checkIndexes();
    ++m_report.tables;
    m_report.rows += m_rows.size();
}

UsageMap TableChecker::enterMap(RowPointer where) {
    m_ledger.enterShared(where.page);
    UsageMap map = UsageMap::read(m_source, where, m_name);
    for (const PageNumber page : map.bitmapPages())
        m_ledger.enter(page, "a usage map of " + m_name);
    return map;
}

void TableChecker::enterPages(const UsageMap& map, std::string_view use) {
    for (const PageNumber page : map.pagesWithinFile())
        m_ledger.enter(page, use);
}

void TableChecker::checkDataPages(const UsageMap& owned) {
    m_pointers = 0;
    m_relocated = 0;
    for (const PageNumber page : owned.pages())
        checkDataPage(page);
    if (m_pointers != m_relocated)
        placeOf(m_table.page())
            .fail(std::to_string(m_pointers) + " rows were moved, but " + std::to_string(m_relocated) +
                  " moved rows are there");
}

void TableChecker::checkDataPage(PageNumber number) {
    PageBuffer buffer;
    const PageBytes bytes = m_source.page(number, buffer);
    const DataPage page(bytes, placeOf(number));
    std::size_t lowest = format::page::kSize;
    for (std::size_t slot = 0; slot < page.slotCount(); ++slot) {
        lowest -= page.row(slot).size();
        m_pointers += page.kind(slot) == SlotKind::Pointer ? 1U : 0U;
        m_relocated += page.kind(slot) == SlotKind::Relocated ? 1U : 0U;
    }
    const std::size_t slots = format::dataPage::kSlots + page.slotCount() * format::dataPage::kSlotSize;
    if (ByteView(bytes, placeOf(number)).u16(format::page::kFreeBytes) != lowest - slots)
        placeOf(number).fail("the free bytes are not what the rows leave");
}

void TableChecker::checkRows() {
    m_rows.clear();
    TableScan scan(m_source, m_table, m_name);
    ValueDecoder decoder(m_source);
    while (scan.next()) {
        m_rows.push_back(scan.position());
        for (const Column& column : m_table.columns) {
            if (!column.isLongValue())
                decoder.value(scan.row(), column);
        }
    }
    if (m_rows.size() != m_table.rowCount)
        m_report.remarks.push_back(placeOf(m_table.page()).describe() + ": the definition states " +
                                   std::to_string(m_table.rowCount) + " rows, " +
                                   std::to_string(m_rows.size()) + " are there");
}

void TableChecker::checkLongValues(const Column& column) {
    VisitedPages pages(m_source);
    LongValueReader reader(pages);
    TableScan scan(m_source, m_table, m_name);
    while (scan.next()) {
        const std::span<const std::byte> field = scan.row().field(column);
        if (field.size() < format::longValue::kHeaderSize)
            continue;
        const ByteView view(field, scan.row().place());
        const std::size_t stated = view.u32(format::longValue::kLength) & format::longValue::kLengthMask;
        if (reader.read(field, scan.row().place()).size() != stated)
            view.fail("column " + column.name + " is shorter than its stated length of " +
                      std::to_string(stated));
        ++m_report.longValues;
    }
    checkLongValuePages(column, pages.visited());
}

void TableChecker::checkLongValuePages(const Column& column, const std::vector<PageNumber>& visited) {
    const auto maps = std::ranges::find(m_table.longValueMaps, column.number, &LongValueMaps::column);
    if (maps == m_table.longValueMaps.end() || maps->isBroken())
        return;
    const UsageMap owned = enterMap(maps->owned);
    enterPages(owned, "long values in " + column.name + " of " + m_name);
    enterMap(maps->free);
    for (const PageNumber page : visited) {
        if (!owned.contains(page))
            placeOf(page).fail("the page holds a long value of " + column.name +
                               ", but is not listed as such");
    }
}

void TableChecker::checkIndexes() {
    IndexChecker checker(m_source, m_table, m_name, m_rows);
    for (const RealIndex& index : m_table.realIndexes) {
        const UsageMap pages = enterMap(index.usageMap);
        enterPages(pages, "an index of " + m_name);
        m_report.indexEntries += checker.check(index, pages);
        ++m_report.indexes;
    }
}

} // namespace jet
