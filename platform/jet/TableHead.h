// SPDX-FileCopyrightText: 2026 The qmClient authors
// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once
// The fixed beginning of a table's definition, which is all that counting rows needs: one page read, however
// long the definition is. Layout: docs/jet4-format.md, "Table definition".

#include "platform/jet/PageSource.h"
#include "platform/jet/RowPointer.h"

#include <cstdint>

namespace jet {

struct TableHead {
    PageNumber page = 0;
    PageNumber nextPage = 0;
    std::uint32_t length = 0;
    std::uint32_t rowCount = 0;
    std::uint32_t lastAutonumber = 0;
    std::uint8_t tableType = 0;
    RowPointer ownedMap;
    RowPointer freeMap;

    // Throws kProviderFailure unless the page is a table definition's.
    static TableHead read(PageSource& source, PageNumber page, std::string_view table = {});
    // From the beginning of the page, format::definition::kFixedSize bytes or more.
    static TableHead parse(std::span<const std::byte> bytes, const Place& place);
};

} // namespace jet
