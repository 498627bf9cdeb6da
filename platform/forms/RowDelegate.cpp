// SPDX-FileCopyrightText: 2026 The qmClient authors
// SPDX-License-Identifier: GPL-3.0-or-later
#include "platform/forms/RowDelegate.h"

#include "platform/forms/ListModel.h"
#include "platform/forms/ReportView.h"

namespace forms {

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
