// SPDX-FileCopyrightText: 2026 The qmClient authors
// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once
// Adds rows to data pages: rows of tables, long values and usage maps alike. Layout: docs/jet4-format.md,
// "Rows".

#include "platform/jet/Place.h"
#include "platform/jet/WriteCache.h"

#include <cstdint>
#include <span>

namespace jet {

// Makes a page of zeros an empty data page.
void initialiseDataPage(MutablePage page, std::uint32_t owner);

// The row's slot number. The row must fit (DataPageSpace::fits).
std::uint8_t appendRow(MutablePage page, std::span<const std::byte> row, const Place& place);

} // namespace jet
