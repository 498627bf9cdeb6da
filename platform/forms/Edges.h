// SPDX-FileCopyrightText: 2026 The qmClient authors
// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once
// The platform's drawn edges: up to two nested lines of one logical pixel along the inside of a rectangle,
// lit from the top left. Colours come from the palette, so edges follow a light or dark theme: Light and
// Midlight on the raised sides, Dark and Shadow on the sunken ones.

#include <QRect>

#include <cstdint>

class QPainter;
class QPalette;

namespace forms {

// Kinds of the outer and of the inner line; at most one of each.
inline constexpr std::int32_t BDR_RAISEDOUTER = 1;
inline constexpr std::int32_t BDR_SUNKENOUTER = 2;
inline constexpr std::int32_t BDR_RAISEDINNER = 4;
inline constexpr std::int32_t BDR_SUNKENINNER = 8;

// The sides that are drawn.
inline constexpr std::int32_t BF_LEFT = 1;
inline constexpr std::int32_t BF_TOP = 2;
inline constexpr std::int32_t BF_RIGHT = 4;
inline constexpr std::int32_t BF_BOTTOM = 8;
inline constexpr std::int32_t BF_RECT = 15;

// The bottom and right sides have the corners that they share with the others. An inner line lies one pixel
// further in when there is an outer one, on all four sides, whichever of them are drawn.
void DrawEdge(QPainter& painter, const QRect& rectangle, std::int32_t edge, std::int32_t flags,
              const QPalette& palette);

} // namespace forms
