// SPDX-FileCopyrightText: 2026 The qmClient authors
// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once
// How well one colour stands out from another, as the web's accessibility guidelines (WCAG 2) measure it.

#include <QColor>

#include <algorithm>
#include <cmath>

namespace colour {

inline double linear(int channel) {
    const double part = channel / 255.0;
    return part <= 0.04045 ? part / 12.92 : std::pow((part + 0.055) / 1.055, 2.4);
}

inline double luminance(const QColor& colour) {
    return 0.2126 * linear(colour.red()) + 0.7152 * linear(colour.green()) + 0.0722 * linear(colour.blue());
}

// From 1 for two equal colours to 21 for black and white.
inline double contrast(const QColor& a, const QColor& b) {
    const auto [darker, lighter] = std::minmax(luminance(a), luminance(b));
    return (lighter + 0.05) / (darker + 0.05);
}

} // namespace colour
