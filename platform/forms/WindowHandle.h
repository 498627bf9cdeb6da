// SPDX-FileCopyrightText: 2026 The qmClient authors
// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once
// What stands for a window's handle in messages: a number that is unique among the living widgets. It is not
// a native window's, so asking for it creates none.

#include <QWidget>

#include <cstdint>

namespace forms {

inline std::uintptr_t handleOf(const QWidget& widget) {
    return reinterpret_cast<std::uintptr_t>(&widget);
}

} // namespace forms
