// SPDX-FileCopyrightText: 2026 The qmClient authors
// SPDX-License-Identifier: GPL-3.0-or-later
#include "tray/LinkLabel.h"

#include <QColor>
#include <QEvent>
#include <QFontMetrics>
#include <QPainter>
#include <QPalette>

namespace tray {
namespace {

constexpr int kMargin = 4; // room around the text that can be clicked, too
constexpr int kDark = 128;
constexpr int kReadableOnDark = 190;

// Palettes of dark themes often keep the deep blue that suits light ones.
QColor linkColour(const QPalette& palette, QPalette::ColorRole role) {
    const QColor colour = palette.color(role);
    if (palette.color(QPalette::Window).lightness() >= kDark || colour.lightness() >= kReadableOnDark)
        return colour;
    return QColor::fromHsl(colour.hslHue(), colour.hslSaturation(), kReadableOnDark);
}

} // namespace

LinkLabel::LinkLabel(const QString& objectName, const QString& text, QWidget* parent)
    : QAbstractButton(parent) {
    setObjectName(objectName);
    setText(text);
    setFocusPolicy(Qt::NoFocus);
    setCursor(Qt::PointingHandCursor);
    setSizePolicy(QSizePolicy::Fixed, QSizePolicy::Fixed);
}

QSize LinkLabel::sizeHint() const {
    const QSize drawn = fontMetrics().size(Qt::TextSingleLine, text());
    return drawn + QSize(2 * kMargin, 2 * kMargin);
}

void LinkLabel::paintEvent(QPaintEvent*) {
    QPainter painter(this);
    QFont drawn = font();
    drawn.setUnderline(underMouse());
    painter.setFont(drawn);
    painter.setPen(linkColour(palette(), isDown() ? QPalette::LinkVisited : QPalette::Link));
    painter.drawText(rect(), Qt::AlignCenter | Qt::TextSingleLine, text());
}

bool LinkLabel::event(QEvent* event) {
    if (event->type() == QEvent::Enter || event->type() == QEvent::Leave)
        update();
    return QAbstractButton::event(event);
}

} // namespace tray
