// SPDX-FileCopyrightText: 2026 The qmClient authors
// SPDX-License-Identifier: GPL-3.0-or-later
#include "audio/FrameDrawing.h"

#include "errors/Procedure.h"
#include "platform/basic/RuntimeError.h"
#include "platform/forms/Edges.h"

namespace audio {
namespace {

basic::Twips plus(basic::Twips a, basic::Twips b) {
    basic::Twips sum;
    if (__builtin_add_overflow(a.value, b.value, &sum.value))
        throw basic::RuntimeError(basic::kOverflow);
    return sum;
}

QRect onePixelOutside(const forms::Placement& control) {
    const int left = basic::toPixels(control.Left()) - 1;
    const int top = basic::toPixels(control.Top()) - 1;
    const int right = basic::toPixels(plus(control.Left(), control.Width())) + 1;
    const int bottom = basic::toPixels(plus(control.Top(), control.Height())) + 1;
    return {left, top, right - left, bottom - top};
}

// How many lines wide an edge is that consists of an inner line, alone or not, or of an outer one only.
int borderOf(std::int32_t edge) {
    if (edge >= forms::BDR_RAISEDINNER)
        return 2;
    return edge >= forms::BDR_RAISEDOUTER ? 1 : 0;
}

} // namespace

void FrameDrawing::DrawLabelEdge(const forms::Placement& control, forms::Surface& surface, std::int32_t edge,
                                 std::int32_t flags) {
    // Reports as ctlAudio.DrawLabelEdge, cltButton.DrawLabelEdge
    errors::Procedure proc{m_errors, m_module, "DrawLabelEdge"};
    QRect rectangle;
    proc.step([&] { rectangle = onePixelOutside(control); });
    proc.step([&] {
        m_edge = edge;
        m_edgeFlags = flags;
    });
    proc.step([&] { surface.DrawEdge(rectangle, edge, flags); });
}

void FrameDrawing::EvaluateSize(forms::Surface& surface) {
    // Reports as ctlAudio.EvaluateSize, cltButton.EvaluateSize
    errors::Procedure proc{m_errors, m_module, "EvaluateSize"};
    proc.step([&] { selectClip(surface); });
}

void FrameDrawing::EvaluateSize2() {
    // Reports as ctlAudio.EvaluateSize2, cltButton.EvaluateSize2
    errors::Procedure proc{m_errors, m_module, "EvaluateSize2"};
    proc.step([&] { selectClip(m_own); });
}

void FrameDrawing::removeClip() {
    if (!m_region)
        return;
    m_own.SelectClipRgn(std::nullopt);
    m_region.reset();
}

void FrameDrawing::selectClip(forms::Surface& surface) {
    int x = 0;
    int y = 0;
    int width = basic::toPixels(surface.ScaleWidth());
    int height = basic::toPixels(surface.ScaleHeight());
    const int border = borderOf(m_edge);
    if ((m_edgeFlags & forms::BF_LEFT) != 0) {
        x = border;
        width -= border;
    }
    if ((m_edgeFlags & forms::BF_TOP) != 0) {
        y = border;
        height -= border;
    }
    if ((m_edgeFlags & forms::BF_RIGHT) != 0)
        width -= border;
    if ((m_edgeFlags & forms::BF_BOTTOM) != 0)
        height -= border;
    m_region = QRect(x, y, width, height);
    surface.SelectClipRgn(m_region);
}

} // namespace audio
