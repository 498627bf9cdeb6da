// SPDX-FileCopyrightText: 2026 The qmClient authors
// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once
// The definition of a table as a file has it now, read anew at every call.

#include "platform/jet/Catalog.h"
#include "platform/jet/PageReader.h"
#include "platform/jet/TableDefinitionReader.h"

namespace jet::test {

inline PageNumber definitionPageOf(share::File& file, std::string_view table) {
    PageReader pages(file, 0);
    return Catalog(pages).find(table).definitionPage();
}

inline TableDefinition definitionOf(PageSource& pages, std::string_view table) {
    return TableDefinitionReader(pages).read(Catalog(pages).find(table).definitionPage(), table);
}

inline TableDefinition definitionOf(share::File& file, std::string_view table) {
    PageReader pages(file, 0);
    return definitionOf(pages, table);
}

} // namespace jet::test
