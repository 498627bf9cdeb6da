// SPDX-FileCopyrightText: 2026 The qmClient authors
// SPDX-License-Identifier: GPL-3.0-or-later
#include "platform/forms/PictureBox.h"

#include <QEvent>
#include <QPainter>

namespace forms {

// Colours are kept beside coverage, not multiplied with it, so that they can be told exactly.
void PictureBox::Cls() {
    const qreal ratio = devicePixelRatioF();
    m_picture = QImage((QSizeF(size()) * ratio).toSize(), QImage::Format_ARGB32);
    m_picture.setDevicePixelRatio(ratio);
    m_picture.fill(Qt::transparent);
    update();
}

void PictureBox::PaintPicture(const QIcon& picture) {
    if (m_picture.isNull())
        Cls();
    const QImage drawn =
        picture.pixmap(size(), m_picture.devicePixelRatio()).toImage().convertToFormat(QImage::Format_ARGB32);
    for (int y = 0; y < qMin(drawn.height(), m_picture.height()); ++y)
        for (int x = 0; x < qMin(drawn.width(), m_picture.width()); ++x)
            m_picture.setPixel(x, y, drawn.pixel(x, y));
    update();
}

std::optional<QColor> PictureBox::Point(int x, int y) const {
    if (!m_picture.valid(x, y) || qAlpha(m_picture.pixel(x, y)) == 0)
        return std::nullopt;
    return QColor(m_picture.pixel(x, y));
}

void PictureBox::PSet(int x, int y) {
    if (!m_picture.valid(x, y))
        return;
    QColor colour = ForeColor();
    colour.setAlpha(qAlpha(m_picture.pixel(x, y)));
    m_picture.setPixelColor(x, y, colour);
    update();
}

void PictureBox::paintEvent(QPaintEvent* /*event*/) {
    QPainter(this).drawImage(QPoint(), m_picture);
}

void PictureBox::changeEvent(QEvent* event) {
    QWidget::changeEvent(event);
    if (event->type() == QEvent::PaletteChange)
        Q_EMIT Outdated();
}

void PictureBox::showEvent(QShowEvent* event) {
    QWidget::showEvent(event);
    if (!m_picture.isNull() && m_picture.devicePixelRatio() != devicePixelRatioF())
        Q_EMIT Outdated();
}

} // namespace forms
