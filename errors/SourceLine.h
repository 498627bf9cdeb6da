// SPDX-FileCopyrightText: 2026 The qmClient authors
// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once
// The number of the line a call stands in, as a default argument of the function that is called:
//
//     void step(Statement statement, SourceLine line = SourceLine::here());
//
// clang 14 lacks what std::source_location is made of, but has this.

#include <cstdint>

namespace errors {

struct SourceLine {
    std::int32_t number = 0;

    static constexpr SourceLine here(int line = __builtin_LINE()) noexcept { return {line}; }
};

} // namespace errors
