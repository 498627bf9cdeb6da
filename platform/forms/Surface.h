// SPDX-FileCopyrightText: 2026 The qmClient authors
// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once
// What a control of the program draws on and keeps: clearing, edges and a clip region, as the platform's
// device context offers them. Sizes are twips, rectangles logical pixels. User-interface thread.

#include "platform/basic/Twips.h"

#include <QRect>

#include <cstdint>
#include <functional>
#include <memory>
#include <optional>

class QPainter;
class QWidget;

namespace forms {

class Surface {
public:
    Surface() = default;
    Surface(const Surface&) = delete;
    Surface& operator=(const Surface&) = delete;
    virtual ~Surface() = default;

    // Of the control inside of its frame.
    virtual basic::Twips ScaleWidth() const = 0;
    virtual basic::Twips ScaleHeight() const = 0;

    // Makes everything inside of the clip region transparent.
    virtual void Cls() = 0;
    // Edges and sides by the numbers of Edges.h, in the control's colours.
    virtual void DrawEdge(const QRect& rectangle, std::int32_t edge, std::int32_t flags) = 0;
    // Nothing is drawn outside of the region from now on; an empty one lets nothing through, none all.
    virtual void SelectClipRgn(const std::optional<QRect>& region) = 0;

    // Puts what was drawn onto the control; for its paint event.
    virtual void paintOnto(QPainter& painter) const = 0;
};

// Makes the surface of a control, which must outlive it.
using MakeSurface = std::function<std::unique_ptr<Surface>(const QWidget&)>;

} // namespace forms
