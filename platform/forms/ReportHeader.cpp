// SPDX-FileCopyrightText: 2026 The qmClient authors
// SPDX-License-Identifier: GPL-3.0-or-later
#include "platform/forms/ReportHeader.h"

#include <QMouseEvent>
#include <QStyle>

namespace forms {

ReportHeader::ReportHeader(QWidget* parent) : QHeaderView(Qt::Horizontal, parent) {
    setSectionsMovable(false);
    setSectionsClickable(false);
    setHighlightSections(false);
    setStretchLastSection(false);
    setMinimumSectionSize(8);
}

// The column whose right edge is under the mouse, -1 for none; the reach is the one in which the toolkit
// itself takes a press for a drag.
int ReportHeader::dividerAt(const QMouseEvent& event) const {
    const int x = qRound(event.position().x());
    const int column = logicalIndexAt(x);
    if (column < 0)
        return -1;
    const int grip = style()->pixelMetric(QStyle::PM_HeaderGripMargin, nullptr, this);
    const int left = sectionViewportPosition(column);
    const bool mirrored = isRightToLeft();
    const bool atLeft = x < left + grip;
    const bool atRight = x > left + sectionSize(column) - grip;
    if (mirrored ? atRight : atLeft)
        return visualIndex(column) > 0 ? logicalIndex(visualIndex(column) - 1) : -1;
    return (mirrored ? atLeft : atRight) ? column : -1;
}

bool ReportHeader::refuses(int column) const {
    return column >= 0 && m_rule && !m_rule(column);
}

void ReportHeader::mousePressEvent(QMouseEvent* event) {
    const int column = dividerAt(*event);
    if (event->button() == Qt::LeftButton && refuses(column)) {
        event->accept();
        return;
    }
    m_sizing = event->button() == Qt::LeftButton && column >= 0;
    QHeaderView::mousePressEvent(event);
}

// The cursor over a divider promises a drag, so the question is put as soon as the mouse comes there.
void ReportHeader::mouseMoveEvent(QMouseEvent* event) {
    if (event->buttons() == Qt::NoButton) {
        const int column = dividerAt(*event);
        if (column != m_hovered) {
            m_hovered = column;
            m_hoveredRefused = refuses(column);
        }
        if (m_hoveredRefused) {
            unsetCursor();
            event->accept();
            return;
        }
    }
    QHeaderView::mouseMoveEvent(event);
}

void ReportHeader::mouseReleaseEvent(QMouseEvent* event) {
    QHeaderView::mouseReleaseEvent(event);
    m_sizing = false;
}

void ReportHeader::mouseDoubleClickEvent(QMouseEvent* event) {
    const int column = dividerAt(*event);
    if (refuses(column)) {
        event->accept();
        return;
    }
    m_sizing = column >= 0;
    QHeaderView::mouseDoubleClickEvent(event);
    m_sizing = false;
}

} // namespace forms
