// SPDX-FileCopyrightText: 2026 The qmClient authors
// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once
// The single pixels of what was drawn on a control, as the platform lets a program read and set them. They
// are the screen's own, of which there may be several to a logical one. User-interface thread.

#include <QColor>

#include <optional>

namespace forms {

class Pixels {
public:
    virtual ~Pixels() = default;

    // The control's inner size.
    virtual int ScaleWidth() const = 0;
    virtual int ScaleHeight() const = 0;
    // The colour of a pixel, however much it covers of what is below; none outside of the control and where
    // nothing was drawn.
    virtual std::optional<QColor> Point(int x, int y) const = 0;
    // Gives the pixel the control's foreground colour and leaves how much it covers. Does nothing outside.
    virtual void PSet(int x, int y) = 0;
};

} // namespace forms
