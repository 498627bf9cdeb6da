// SPDX-FileCopyrightText: 2026 The qmClient authors
// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once
// How many rows a table has, for the price of as few pages as possible. See docs/jet4-format.md,
// "Counting while the server writes".

#include "platform/jet/PageSource.h"
#include "platform/jet/TableHead.h"

#include <cstdint>

namespace jet {

// The count of the definition. An engine that ended badly may leave 0 there with rows present, so a 0 is
// believed only when no page of the table holds a live row.
std::uint32_t countRows(PageSource& source, const TableHead& table, std::string_view tableName);
// The live rows of all pages of the table, whatever the definition says.
std::uint32_t countLiveRows(PageSource& source, const TableHead& table, std::string_view tableName);

} // namespace jet
