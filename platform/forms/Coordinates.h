// SPDX-FileCopyrightText: 2026 The qmClient authors
// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once
// Twips to the units of the screen. The toolkit's coordinates are logical pixels, of which a screen may have
// several to one of ours; device pixels matter only to who paints bitmaps.

#include "platform/basic/Twips.h"

#include <QRect>
#include <QWidget>

namespace forms {

inline QRect toPixels(basic::Twips left, basic::Twips top, basic::Twips width, basic::Twips height) {
    return {basic::toPixels(left), basic::toPixels(top), basic::toPixels(width), basic::toPixels(height)};
}

inline int toDevicePixels(basic::Twips length, const QWidget& onScreenOf) {
    return qRound(length.value * onScreenOf.devicePixelRatioF() / basic::kTwipsPerPixel);
}

} // namespace forms
