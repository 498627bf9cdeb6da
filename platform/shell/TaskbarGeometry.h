// SPDX-FileCopyrightText: 2026 The qmClient authors
// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once
// How much of a monitor's bottom edge panels take, from what panels tell the window system. Everything is in
// the root window's own pixels. Plain functions, no window system, any thread.

#include "platform/shell/Rectangle.h"

#include <cstdint>
#include <optional>
#include <span>

namespace shell {

// Space that a window reserves along the root window's bottom edge, and the columns it does so for (both
// included).
struct BottomStrut {
    std::uint32_t height = 0;
    std::uint32_t firstColumn = 0;
    std::uint32_t lastColumn = 0;
};

struct Panel {
    Rectangle place;      // of the window, whatever it reserves
    bool isDock = false;  // says that it is a panel
    bool isShown = false; // mapped; a hidden panel takes no space by its mere place
    std::optional<BottomStrut> strut;
};

// The bottom part of _NET_WM_STRUT_PARTIAL (12 values) or, without that, of _NET_WM_STRUT (4 values, all
// columns). Nothing for lists of another length.
std::optional<BottomStrut> bottomStrut(std::span<const std::uint32_t> partial,
                                       std::span<const std::uint32_t> plain, int rootWidth);

// Rows taken at the monitor's bottom edge, 0 for none. A strut counts where it reaches into the monitor; the
// window of a shown dock counts when it lies along that edge.
int reservedBottomRows(const Rectangle& monitor, int rootHeight, std::span<const Panel> panels);

} // namespace shell
