// SPDX-FileCopyrightText: 2026 The qmClient authors
// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once
// One object of the catalog, and the catalog's columns that tell it: they are found by name once and kept.
// Layout: docs/jet4-format.md, "Catalog".

#include "platform/jet/RowPointer.h"
#include "platform/jet/RowView.h"
#include "platform/jet/TableDefinition.h"

#include <cstdint>
#include <string>

namespace jet {

struct CatalogEntry {
    std::string name;
    std::int32_t id = 0;
    std::int32_t parent = 0;
    std::int16_t type = 0;
    std::uint32_t flags = 0;
    RowPointer row;

    bool isTable() const noexcept;
    // A table whose rows lie in another database.
    bool isLink() const noexcept;
    bool isSystem() const noexcept { return (flags & format::catalog::kSystemFlags) != 0; }
    PageNumber definitionPage() const noexcept {
        return static_cast<std::uint32_t>(id) & format::catalog::kPageMask;
    }
};

struct CatalogColumns {
    Column id;
    Column parent;
    Column name;
    Column type;
    Column flags;

    // Throws kProviderFailure when a column is missing.
    static CatalogColumns find(const TableDefinition& catalog, const Place& place);
    CatalogEntry entry(const RowView& row, RowPointer where) const;
};

} // namespace jet
