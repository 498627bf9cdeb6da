// SPDX-FileCopyrightText: 2026 The qmClient authors
// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once
// A rectangle as the platform counts it: right and bottom are the first column and row behind it.

namespace shell {

struct Rectangle {
    int left = 0;
    int top = 0;
    int right = 0;
    int bottom = 0;

    constexpr int width() const noexcept { return right - left; }
    constexpr int height() const noexcept { return bottom - top; }
    constexpr bool operator==(const Rectangle&) const = default;
};

} // namespace shell
