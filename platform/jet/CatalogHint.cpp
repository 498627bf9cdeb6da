// SPDX-FileCopyrightText: 2026 The qmClient authors
// SPDX-License-Identifier: GPL-3.0-or-later
#include "platform/jet/CatalogHint.h"

#include "platform/jet/DataPage.h"
#include "platform/jet/NameComparison.h"

namespace jet {

std::optional<CatalogEntry> CatalogHint::check(PageSource& source, const DatabaseHeader& header,
                                               std::string_view table) const {
    if (creationStamp != header.creationStamp || entry.row.page == 0 || entry.row.page >= source.pageCount())
        return std::nullopt;
    PageBuffer buffer;
    const PageBytes bytes = source.page(entry.row.page, buffer);
    if (!DataPage::isOwnedBy(bytes, format::catalog::kDefinitionPage))
        return std::nullopt;
    const DataPage page(bytes, {source.name(), "MSysObjects", entry.row.page});
    if (entry.row.row >= page.slotCount() || page.kind(entry.row.row) != SlotKind::Row)
        return std::nullopt;
    CatalogEntry now = columns.entry(RowView(page.row(entry.row.row)), entry.row);
    const bool isSame = now.isTable() && now.id == entry.id && equalNames(now.name, table);
    return isSame ? std::optional(std::move(now)) : std::nullopt;
}

} // namespace jet
