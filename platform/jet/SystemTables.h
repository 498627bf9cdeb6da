// SPDX-FileCopyrightText: 2026 The qmClient authors
// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once
// The four tables that every database has, as the engine lays them out, and the rows they begin with.
// Layout: docs/jet4-format.md, "Catalog".

#include "platform/basic/Variant.h"
#include "platform/jet/TableDefinition.h"

#include <array>
#include <vector>

namespace jet::systemTables {

// In the order of their pages, from 2 on.
inline constexpr std::array kNames{"MSysObjects", "MSysACEs", "MSysQueries", "MSysRelationships"};
inline constexpr PageNumber kFirstPage = 2;
inline constexpr PageNumber kPermissionsPage = 3;

// The header's build number and creation date that the security identifiers below belong to: they are
// scrambled with a key that follows from these two.
inline constexpr std::uint32_t kBuild = 0x21AA;
inline constexpr std::uint64_t kCreationStamp = 0x40E29FF17D1F72BC;

// Definitions without pages and maps, in the order of kNames.
std::vector<TableDefinition> definitions();

using Row = std::vector<basic::Variant>; // in order of the column numbers
std::vector<Row> firstObjects(const basic::Date& created);
std::vector<Row> firstPermissions();

// What a user table adds to the catalog and to the permissions.
Row tableObject(PageNumber definitionPage, const std::string& name, const basic::Date& created);
std::vector<Row> tablePermissions(PageNumber definitionPage);

} // namespace jet::systemTables
