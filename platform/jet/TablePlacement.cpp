// SPDX-FileCopyrightText: 2026 The qmClient authors
// SPDX-License-Identifier: GPL-3.0-or-later
#include "platform/jet/TablePlacement.h"

#include "platform/jet/DataPageAppend.h"
#include "platform/jet/DataPageSpace.h"
#include "platform/jet/IndexNodeEncoder.h"
#include "platform/jet/UsageMapWriter.h"

#include <algorithm>
#include <array>

namespace jet {

using namespace format;

RowPointer NewUsageMaps::add() {
    static constexpr std::array<std::byte, usageMap::kUsualRowSize> kEmptyMap{};
    PageBuffer buffer;
    const Place place{m_cache.name(), {}, m_page, kNoRow};
    if (m_page == 0 || !DataPageSpace(m_cache.page(m_page, buffer), place).fits(kEmptyMap.size())) {
        m_page = m_allocator.allocate();
        initialiseDataPage(m_cache.edit(m_page, WriteStage::NewPage), dataPage::kMapOwner);
    }
    return {m_page, appendRow(m_cache.edit(m_page, WriteStage::UsageMaps), kEmptyMap, place)};
}

RowPointer NewUsageMaps::addWith(PageNumber member) {
    const RowPointer map = add();
    UsageMapWriter(m_cache, m_allocator, map).add(member);
    return map;
}

void placeMaps(TableDefinition& table, NewUsageMaps& maps) {
    table.ownedMap = maps.add();
    table.freeMap = maps.add();
    std::vector<LongValueMaps*> byColumn;
    for (LongValueMaps& entry : table.longValueMaps)
        byColumn.push_back(&entry);
    std::ranges::sort(byColumn, {}, &LongValueMaps::column);
    for (LongValueMaps* entry : byColumn) {
        entry->owned = maps.add();
        entry->free = maps.add();
    }
}

void placeIndexes(TableDefinition& table, NewUsageMaps& maps, WriteCache& cache, PageAllocator& allocator) {
    for (RealIndex& index : table.realIndexes) {
        index.root = allocator.allocate();
        encodeIndexNode({}, table.page(), cache.edit(index.root, WriteStage::NewPage));
        index.usageMap = maps.addWith(index.root);
    }
}

} // namespace jet
