// SPDX-FileCopyrightText: 2026 The qmClient authors
// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once
// Names a row by its page and its slot there, as usage maps, moved rows and long values are referred to.
// Stored as one byte of row and three of page. Layout: docs/jet4-format.md, "Pages".

#include "platform/jet/Place.h"

#include <compare>
#include <cstdint>

namespace jet {

struct RowPointer {
    PageNumber page = 0;
    std::uint8_t row = 0;

    static constexpr RowPointer fromStored(std::uint32_t stored) noexcept {
        return {stored >> 8U, static_cast<std::uint8_t>(stored & 0xFFU)};
    }
    constexpr std::uint32_t stored() const noexcept { return page << 8U | row; }
    // NOLINTNEXTLINE(modernize-use-nullptr): the check takes the defaulted operator for a null pointer
    constexpr auto operator<=>(const RowPointer&) const = default;
};

} // namespace jet
