// SPDX-FileCopyrightText: 2026 The qmClient authors
// SPDX-License-Identifier: GPL-3.0-or-later
#include "dialogs/KeyColour.h"

namespace dialogs {

void replaceKeyColour(forms::Pixels& box) {
    constexpr QRgb kKeyColour = qRgb(0, 255, 0);
    for (int x = 0; x <= box.ScaleWidth(); ++x)
        for (int y = 0; y <= box.ScaleHeight(); ++y)
            if (const auto colour = box.Point(x, y); colour && colour->rgb() == kKeyColour)
                box.PSet(x, y);
}

} // namespace dialogs
