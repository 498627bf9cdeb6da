// SPDX-FileCopyrightText: 2026 The qmClient authors
// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once
// Where in a database something was found, for error texts: file, table, page, row. The names are only
// referred to, so a place lives no longer than the reader that made it.

#include <cstdint>
#include <string>
#include <string_view>

namespace jet {

using PageNumber = std::uint32_t;

inline constexpr std::int32_t kNoRow = -1;

struct Place {
    std::string_view file{};
    std::string_view table{};
    PageNumber page = 0;
    std::int32_t row = kNoRow;

    // "qmLog.mdb, table CallLog, page 12, row 3"
    std::string describe() const;
    // Throws RuntimeError kProviderFailure with the text "<place>: <problem>".
    [[noreturn]] void fail(std::string_view problem) const;
};

} // namespace jet
