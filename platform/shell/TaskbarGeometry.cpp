// SPDX-FileCopyrightText: 2026 The qmClient authors
// SPDX-License-Identifier: GPL-3.0-or-later
#include "platform/shell/TaskbarGeometry.h"

#include <algorithm>

namespace shell {
namespace {

enum PartialStrut { kBottom = 3, kBottomFirst = 10, kBottomLast = 11, kPartialLength = 12 };
constexpr std::size_t kPlainLength = 4;

int rowsOfStrut(const Rectangle& monitor, int rootHeight, const BottomStrut& strut) {
    if (strut.height > static_cast<std::uint32_t>(std::max(rootHeight, 0)))
        return 0; // larger than the screen: nonsense
    const bool isInColumns = static_cast<std::int64_t>(strut.firstColumn) < monitor.right &&
                             static_cast<std::int64_t>(strut.lastColumn) >= monitor.left;
    const int top = rootHeight - static_cast<int>(strut.height);
    return isInColumns && top > monitor.top ? std::max(monitor.bottom - top, 0) : 0;
}

// Along the bottom edge: wider than high, in the lower half, not further from the edge than its own height.
int rowsOfDock(const Rectangle& monitor, const Rectangle& place) {
    const bool isOnMonitor = place.left < monitor.right && place.right > monitor.left &&
                             place.top < monitor.bottom && place.top > monitor.top + monitor.height() / 2;
    const bool isAlongTheEdge = place.width() > place.height() &&
                                monitor.bottom - place.bottom < place.height() &&
                                place.bottom <= monitor.bottom;
    return isOnMonitor && isAlongTheEdge ? monitor.bottom - place.top : 0;
}

} // namespace

std::optional<BottomStrut> bottomStrut(std::span<const std::uint32_t> partial,
                                       std::span<const std::uint32_t> plain, int rootWidth) {
    if (partial.size() == kPartialLength)
        return BottomStrut{partial[kBottom], partial[kBottomFirst], partial[kBottomLast]};
    if (plain.size() == kPlainLength)
        return BottomStrut{plain[kBottom], 0, static_cast<std::uint32_t>(std::max(rootWidth - 1, 0))};
    return std::nullopt;
}

int reservedBottomRows(const Rectangle& monitor, int rootHeight, std::span<const Panel> panels) {
    int rows = 0;
    for (const Panel& panel : panels) {
        if (!panel.isShown)
            continue;
        if (panel.strut && panel.strut->height > 0)
            rows = std::max(rows, rowsOfStrut(monitor, rootHeight, *panel.strut));
        if (panel.isDock)
            rows = std::max(rows, rowsOfDock(monitor, panel.place));
    }
    return rows < monitor.height() ? rows : 0;
}

} // namespace shell
