// SPDX-FileCopyrightText: 2026 The qmClient authors
// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once
// One column of a list view as the program states it. The width is the logical property; what is drawn may be
// wider.

#include "platform/basic/Twips.h"

#include <cstdint>
#include <string>

namespace forms {

inline constexpr std::int32_t kColumnLeft = 0;
inline constexpr std::int32_t kColumnRight = 1;
inline constexpr std::int32_t kColumnCenter = 2;

struct ColumnHeader {
    std::string Text;
    basic::Twips Width;
    std::int32_t Alignment = kColumnLeft;
    std::string Key;
};

} // namespace forms
