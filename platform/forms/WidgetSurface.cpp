// SPDX-FileCopyrightText: 2026 The qmClient authors
// SPDX-License-Identifier: GPL-3.0-or-later
#include "platform/forms/WidgetSurface.h"

#include "platform/forms/Edges.h"

#include <QPainter>

namespace forms {

basic::Twips WidgetSurface::ScaleWidth() const {
    return basic::fromPixels(m_control.width());
}
basic::Twips WidgetSurface::ScaleHeight() const {
    return basic::fromPixels(m_control.height());
}

void WidgetSurface::Cls() {
    if (!m_clip)
        fitToControl();
    if (m_picture.isNull())
        return;
    QPainter painter(&m_picture);
    begin(painter);
    painter.setCompositionMode(QPainter::CompositionMode_Source);
    painter.fillRect(QRect(QPoint(), m_control.size()), Qt::transparent);
}

void WidgetSurface::DrawEdge(const QRect& rectangle, std::int32_t edge, std::int32_t flags) {
    if (m_picture.isNull())
        return;
    QPainter painter(&m_picture);
    begin(painter);
    forms::DrawEdge(painter, rectangle, edge, flags, m_control.palette());
}

void WidgetSurface::paintOnto(QPainter& painter) const {
    painter.drawImage(QPoint(), m_picture);
}

void WidgetSurface::begin(QPainter& painter) {
    if (m_clip)
        painter.setClipRegion(QRegion(*m_clip));
}

void WidgetSurface::fitToControl() {
    const qreal ratio = m_control.devicePixelRatioF();
    const QSize size = (QSizeF(m_control.size()) * ratio).toSize();
    if (size == m_picture.size() && ratio == m_picture.devicePixelRatio())
        return;
    m_picture = QImage(size, QImage::Format_ARGB32_Premultiplied);
    m_picture.setDevicePixelRatio(ratio);
}

} // namespace forms
