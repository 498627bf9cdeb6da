// SPDX-FileCopyrightText: 2026 The qmClient authors
// SPDX-License-Identifier: GPL-3.0-or-later
#include "platform/forms/RowDelegate.h"

#include "platform/forms/ListModel.h"
#include "platform/forms/ReportView.h"

#include <QPainter>

namespace forms {
namespace {

// The toolkit takes the edge of a box from the window's colour: on the dark ground of a list it is not there.
constexpr float kEdgeOpacity = 0.6F;

QColor edgeOf(const QStyleOptionViewItem& cell) {
    const bool isSelected = cell.state.testFlag(QStyle::State_Selected);
    QColor edge = cell.palette.color(isSelected ? QPalette::HighlightedText : QPalette::Text);
    edge.setAlphaF(kEdgeOpacity);
    return edge;
}

} // namespace

void RowDelegate::paint(QPainter* painter, const QStyleOptionViewItem& option,
                        const QModelIndex& index) const {
    QStyledItemDelegate::paint(painter, option, index);
    QStyleOptionViewItem cell = option;
    initStyleOption(&cell, index);
    if (!cell.features.testFlag(QStyleOptionViewItem::HasCheckIndicator))
        return;
    const QRect box =
        cell.widget->style()->subElementRect(QStyle::SE_ItemViewItemCheckIndicator, &cell, cell.widget);
    painter->save();
    painter->setPen(edgeOf(cell));
    painter->setBrush(Qt::NoBrush);
    painter->drawRect(box.adjusted(0, 0, -1, -1));
    painter->restore();
}

void RowDelegate::initStyleOption(QStyleOptionViewItem* option, const QModelIndex& index) const {
    QStyledItemDelegate::initStyleOption(option, index);
    if (index.data(kGhostedRole).toBool())
        option->state.setFlag(QStyle::State_Enabled, false);
    const auto* view = qobject_cast<const ReportView*>(option->widget);
    if (view != nullptr && !view->isFullRowSelect() && index.column() > 0) {
        option->state.setFlag(QStyle::State_Selected, false);
        option->state.setFlag(QStyle::State_HasFocus, false);
    }
}

} // namespace forms
