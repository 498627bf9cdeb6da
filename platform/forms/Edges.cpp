// SPDX-FileCopyrightText: 2026 The qmClient authors
// SPDX-License-Identifier: GPL-3.0-or-later
#include "platform/forms/Edges.h"

#include <QPainter>
#include <QPalette>

namespace forms {
namespace {

struct EdgeColours {
    QPalette::ColorRole topLeft;
    QPalette::ColorRole bottomRight;
};

void drawLine(QPainter& painter, const QRect& r, EdgeColours colours, std::int32_t flags,
              const QPalette& palette) {
    const auto fill = [&](std::int32_t side, const QRect& line, QPalette::ColorRole colour) {
        if ((flags & side) != 0)
            painter.fillRect(line, palette.color(colour));
    };
    fill(BF_LEFT, QRect(r.left(), r.top(), 1, r.height()), colours.topLeft);
    fill(BF_TOP, QRect(r.left(), r.top(), r.width(), 1), colours.topLeft);
    fill(BF_RIGHT, QRect(r.right(), r.top(), 1, r.height()), colours.bottomRight);
    fill(BF_BOTTOM, QRect(r.left(), r.bottom(), r.width(), 1), colours.bottomRight);
}

} // namespace

void DrawEdge(QPainter& painter, const QRect& rectangle, std::int32_t edge, std::int32_t flags,
              const QPalette& palette) {
    QRect r = rectangle;
    if ((edge & (BDR_RAISEDOUTER | BDR_SUNKENOUTER)) != 0) {
        const bool isRaised = (edge & BDR_RAISEDOUTER) != 0;
        drawLine(painter, r,
                 isRaised ? EdgeColours{QPalette::Midlight, QPalette::Shadow}
                          : EdgeColours{QPalette::Dark, QPalette::Light},
                 flags, palette);
        r.adjust(1, 1, -1, -1);
    }
    if ((edge & (BDR_RAISEDINNER | BDR_SUNKENINNER)) != 0) {
        const bool isRaised = (edge & BDR_RAISEDINNER) != 0;
        drawLine(painter, r,
                 isRaised ? EdgeColours{QPalette::Light, QPalette::Dark}
                          : EdgeColours{QPalette::Shadow, QPalette::Midlight},
                 flags, palette);
    }
}

} // namespace forms
