// SPDX-FileCopyrightText: 2026 The qmClient authors
// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once
// A control's surface as a picture in memory with the pixels of the screen the control is on: sharp at every
// scale. It takes the control's size and scale when it is cleared without a clip region; until then it keeps
// what was drawn. The control must outlive it; user-interface thread.

#include "platform/forms/Surface.h"

#include <QImage>
#include <QWidget>

namespace forms {

class WidgetSurface final : public Surface {
public:
    explicit WidgetSurface(const QWidget& control) : m_control(control) {}

    static std::unique_ptr<Surface> of(const QWidget& control) {
        return std::make_unique<WidgetSurface>(control);
    }

    basic::Twips ScaleWidth() const override;
    basic::Twips ScaleHeight() const override;
    void Cls() override;
    void DrawEdge(const QRect& rectangle, std::int32_t edge, std::int32_t flags) override;
    void SelectClipRgn(const std::optional<QRect>& region) override { m_clip = region; }
    void paintOnto(QPainter& painter) const override;

    const QImage& picture() const noexcept { return m_picture; }

private:
    void begin(QPainter& painter);
    void fitToControl();

    const QWidget& m_control;
    QImage m_picture;
    std::optional<QRect> m_clip;
};

} // namespace forms
