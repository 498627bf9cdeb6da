// SPDX-FileCopyrightText: 2026 The qmClient authors
// SPDX-License-Identifier: GPL-3.0-or-later
#include "bench/RowByRowDeletion.h"

#include "platform/jet/ByteEditor.h"
#include "platform/jet/Catalog.h"
#include "platform/jet/DataPage.h"
#include "platform/jet/TableHead.h"
#include "platform/jet/UsageMap.h"
#include "platform/jet/WriteCache.h"

namespace bench {
namespace {

namespace dataPage = jet::format::dataPage;

void markDeleted(jet::MutablePage page, std::size_t slot) {
    const std::size_t at = dataPage::kSlots + slot * dataPage::kSlotSize;
    const auto stored = jet::ByteView(page, {}).u16(at);
    jet::ByteEditor(page).put16(at, static_cast<std::uint16_t>(stored | dataPage::kDeleted));
}

} // namespace

void deleteRowByRow(share::File& file, std::string_view table) {
    jet::WriteCache cache(file);
    const jet::PageNumber definition = jet::Catalog(cache).find(table).definitionPage();
    const auto head = jet::TableHead::read(cache, definition, table);
    std::uint32_t left = head.rowCount;
    const auto owned = jet::UsageMap::read(cache, head.ownedMap, table);
    for (const jet::PageNumber number : owned.pagesWithinFile()) {
        const jet::MutablePage page = cache.edit(number, jet::WriteStage::Rows);
        const jet::DataPage rows(page, {cache.name(), table, number});
        for (std::size_t slot = 0; slot < rows.slotCount(); ++slot) {
            if (rows.kind(slot) != jet::SlotKind::Row)
                continue;
            markDeleted(page, slot);
            const jet::MutablePage counted = cache.edit(definition, jet::WriteStage::Definition);
            jet::ByteEditor(counted).put32(jet::format::definition::kRowCount, --left);
        }
    }
    cache.flush();
}

} // namespace bench
