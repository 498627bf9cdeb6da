// SPDX-FileCopyrightText: 2026 The qmClient authors
// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once
// Finds tables by name in the catalog, the table that lies at page 2 of every database. Names compare without
// case. Keeps the catalog's own definition and no rows: each look-up reads anew, as others may change the
// database meanwhile. The source must outlive the catalog. Layout: docs/jet4-format.md, "Catalog".

#include "platform/jet/CatalogEntry.h"
#include "platform/jet/PageSource.h"

#include <string_view>
#include <vector>

namespace jet {

class Catalog {
public:
    explicit Catalog(PageSource& source);

    // Throws kProviderNoTable when there is no such table, kProviderFailure when it is a linked one.
    CatalogEntry find(std::string_view table) const;
    // All tables with rows of their own, those of the system included, in the catalog's order.
    std::vector<CatalogEntry> tables() const;
    std::vector<CatalogEntry> userTables() const;

    const CatalogColumns& columns() const noexcept { return m_columns; }

private:
    PageSource& m_source;
    TableDefinition m_definition;
    CatalogColumns m_columns;
};

} // namespace jet
