// SPDX-FileCopyrightText: 2026 The qmClient authors
// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once
// Draws an edge around a constituent control and keeps the drawing of a user control inside of it: the two
// halves that the player and the framed picture share, in the controls' own words. Positions are twips, of
// which the whole pixels count; the clip region is in pixels of the control. Failures are reported under the
// module that the control names. What it is given must outlive it; user-interface thread.

#include "errors/ErrorHandler.h"
#include "platform/forms/Placement.h"
#include "platform/forms/Surface.h"

#include <cstdint>
#include <optional>
#include <string_view>

namespace audio {

class FrameDrawing {
public:
    // `module` must outlive it: a literal.
    FrameDrawing(errors::ErrorHandler& errorHandler, std::string_view module, forms::Surface& own)
        : m_errors(errorHandler), m_module(module), m_own(own) {}

    // One pixel outside of the control.
    void DrawLabelEdge(const forms::Placement& control, forms::Surface& surface, std::int32_t edge,
                       std::int32_t flags);
    // Limits the surface's drawing to what lies inside of the edge that was drawn last.
    void EvaluateSize(forms::Surface& surface);
    // The same for the user control's own surface.
    void EvaluateSize2();
    // Lifts the limit from the user control's own surface if there is one.
    void removeClip();

    // The clip rectangle that is in force; nothing without one.
    const std::optional<QRect>& region() const noexcept { return m_region; }

private:
    void selectClip(forms::Surface& surface);

    errors::ErrorHandler& m_errors;
    std::string_view m_module;
    forms::Surface& m_own;
    std::int32_t m_edge = 0;
    std::int32_t m_edgeFlags = 0;
    std::optional<QRect> m_region;
};

} // namespace audio
