// SPDX-FileCopyrightText: 2026 The qmClient authors
// SPDX-License-Identifier: GPL-3.0-or-later
#include "platform/jet/TableEmptier.h"

#include "platform/basic/RuntimeError.h"
#include "platform/jet/Catalog.h"
#include "platform/jet/DataPage.h"
#include "platform/jet/IndexPage.h"
#include "platform/jet/PageUndo.h"
#include "platform/jet/TableDefinitionReader.h"
#include "platform/jet/TablePlacement.h"
#include "platform/jet/WritableDatabase.h"

#include <algorithm>
#include <map>
#include <set>

namespace jet {
namespace {

bool isAmong(const std::vector<PageNumber>& pages, PageNumber page) {
    return std::ranges::find(pages, page) != pages.end();
}

PageNumber findTable(share::File& file, std::string_view table) {
    refuseUnwritable(file);
    WriteCache pages(file);
    return Catalog(pages).find(table).definitionPage();
}

} // namespace

TableEmptier::TableEmptier(share::File& file, std::string_view table)
    : TableEmptier(file, findTable(file, table), table) {}

TableEmptier::TableEmptier(share::File& file, PageNumber definitionPage, std::string_view table)
    : m_file(file), m_name(table), m_cache(file),
      m_table(TableDefinitionReader(m_cache).read(definitionPage, table)),
      m_contents(TableContents::read(m_cache, m_table, table)), m_mapPages(m_contents.mapPages()),
      m_others(m_cache, definitionPage) {
    refuseUnlessPlain();
    refuseForeignPages();
}

void TableEmptier::refuseUnlessPlain() const {
    if (!m_table.isUserTable())
        throw basic::RuntimeError(basic::kProviderReadOnly,
                                  m_file.name() + ": table " + m_name + " belongs to the system");
    if (std::ranges::any_of(m_table.logicalIndexes, &LogicalIndex::isReferenced))
        throw basic::RuntimeError(
            basic::kProviderFailure,
            m_file.name() + ": the rows of table " + m_name +
                " cannot be deleted, another table has records that are related to them");
}

// What is about to be freed must be this table's alone, or another one would lose it; and so must what is
// about to be replaced or wiped.
void TableEmptier::refuseForeignPages() const {
    const std::vector<PageNumber> pages = m_contents.emptiedPages();
    for (std::size_t i = 0; i < pages.size(); ++i) {
        if (m_others.isUsed(pages[i]) || isKept(pages[i]))
            fail(pages[i], "the page is listed as the table's, but has another use");
        if (i > 0 && pages[i] == pages[i - 1])
            fail(pages[i], "the table uses the page twice");
        if (m_others.freePages().contains(pages[i]))
            fail(pages[i], "the page is the table's, but marked free");
    }
    for (const auto& own : {m_table.pages, m_contents.longValueBitmapPages()})
        for (const PageNumber page : own)
            if (m_others.isUsed(page))
                fail(page, "the page is the table's, but another one's as well");
}

// The table cannot be read without the page, whatever becomes of its rows: at least until the switch.
bool TableEmptier::isKept(PageNumber page) const {
    return isAmong(m_table.pages, page) || isAmong(m_mapPages, page);
}

bool TableEmptier::isDone() {
    const auto hasMembers = [](const UsageMap& map) { return !map.pages().empty(); };
    if (m_table.rowCount != 0 || !m_contents.isSound || m_contents.hasLongValues() ||
        std::ranges::any_of(m_contents.rowMaps, hasMembers))
        return false;
    return std::ranges::all_of(m_contents.indexMaps,
                               [](const UsageMap& map) { return map.pages().size() == 1; }) &&
           std::ranges::all_of(m_table.realIndexes,
                               [this](const RealIndex& index) { return isEmptyIndex(index.root); });
}

bool TableEmptier::isEmptyIndex(PageNumber root) {
    PageBuffer buffer;
    const IndexPage page(m_cache.page(root, buffer), {m_cache.name(), m_name, root});
    return page.isEmptyLeaf() && page.owner() == m_table.page();
}

// Everything that can find fault with the file is made before the switch.
void TableEmptier::run(const std::function<void()>& announce) {
    const std::vector<PageNumber> oldMapPages = unusedMapPages();
    std::vector<UsageMapRow> longValueMaps = filledLongValueMaps();
    PageAllocator allocator(m_cache);
    const DefinitionSwitch change(m_cache, allocator, m_table, emptied(allocator));
    writeNewPages();
    writeSwitch(change);
    announce();
    empty(longValueMaps);
    for (const auto& pages : {m_contents.emptiedPages(), change.replacedPages(), oldMapPages})
        for (const PageNumber page : pages)
            allocator.release(page);
    m_cache.flush();
}

TableDefinition TableEmptier::emptied(PageAllocator& allocator) {
    TableDefinition table = m_table;
    NewUsageMaps maps(m_cache, allocator);
    table.rowCount = 0;
    table.ownedMap = maps.add();
    table.freeMap = maps.add();
    placeIndexes(table, maps, m_cache, allocator);
    return table;
}

// A page that the map of free pages hands out although it has a use would be lost to its user. None of those
// that are about to be emptied is in that map: refuseForeignPages().
void TableEmptier::refuseUsedPages() const {
    for (const PageNumber page : m_cache.newPages())
        if (m_others.isUsed(page) || isKept(page))
            fail(page, "the page is marked free, but in use");
}

void TableEmptier::writeNewPages() {
    refuseUsedPages();
    PageUndo undo(m_file, m_cache.changedPages());
    try {
        m_cache.flush();
    } catch (...) {
        undo.restore();
        throw;
    }
}

void TableEmptier::writeSwitch(const DefinitionSwitch& change) {
    m_file.write(std::uint64_t{m_table.page()} * format::page::kSize, change.firstPage());
    m_file.sync();
}

std::vector<UsageMapRow> TableEmptier::filledLongValueMaps() {
    std::vector<UsageMapRow> rows;
    for (const UsageMap& map : m_contents.longValueMaps)
        if (!map.pages().empty())
            rows.emplace_back(m_cache, map.where(), WriteStage::UsageMaps);
    return rows;
}

// Bits only: wherever a write of them is cut, every bit that is left stands for a page that is still theirs.
void TableEmptier::empty(std::vector<UsageMapRow>& maps) {
    for (UsageMapRow& row : maps) {
        if (row.isInline())
            row.editInlineBits().clear();
        for (std::uint32_t i = 0; !row.isInline() && i < row.bitmapCount(); ++i)
            if (row.bitmapPage(i) != 0)
                row.editBitmap(i).clear();
    }
    m_cache.flush();
}

// Pages of usage maps that held nothing but what the table has got new: no map of long values, none of
// others.
std::vector<PageNumber> TableEmptier::unusedMapPages() {
    std::map<PageNumber, std::set<std::uint8_t>> rowsByPage;
    for (const RowPointer map : m_contents.emptiedMaps())
        rowsByPage[map.page].insert(map.row);
    std::vector<PageNumber> pages;
    for (const auto& [page, rows] : rowsByPage) {
        PageBuffer buffer;
        const DataPage maps(m_cache.page(page, buffer), {m_cache.name(), m_name, page});
        if (maps.slotCount() == rows.size() && !m_others.isUsed(page))
            pages.push_back(page);
    }
    return pages;
}

void TableEmptier::fail(PageNumber page, const std::string& what) const {
    Place{m_file.name(), m_name, page}.fail(what);
}

} // namespace jet
