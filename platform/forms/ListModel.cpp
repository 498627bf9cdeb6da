// SPDX-FileCopyrightText: 2026 The qmClient authors
// SPDX-License-Identifier: GPL-3.0-or-later
#include "platform/forms/ListModel.h"

#include "platform/basic/RuntimeError.h"
#include "platform/forms/Text.h"

#include <algorithm>

namespace forms {
namespace {

Qt::Alignment alignmentOf(std::int32_t alignment) {
    switch (alignment) {
    case kColumnRight:
        return Qt::AlignRight | Qt::AlignVCenter;
    case kColumnCenter:
        return Qt::AlignCenter;
    default:
        return Qt::AlignLeft | Qt::AlignVCenter;
    }
}

} // namespace

void ListModel::clearColumns() {
    if (m_columns.empty())
        return;
    beginRemoveColumns({}, 0, columnCount() - 1);
    m_columns.clear();
    endRemoveColumns();
}

void ListModel::addColumn(const ColumnHeader& column) {
    if (column.Alignment < kColumnLeft || column.Alignment > kColumnCenter)
        throw basic::RuntimeError(basic::kInvalidPropertyValue);
    const auto sameKey = [&](const ColumnHeader& other) { return other.Key == column.Key; };
    if (!column.Key.empty() && std::any_of(m_columns.begin(), m_columns.end(), sameKey))
        throw basic::RuntimeError(basic::kKeyNotUnique);
    beginInsertColumns({}, columnCount(), columnCount());
    m_columns.push_back(column);
    endInsertColumns();
}

void ListModel::setColumnWidth(int column, basic::Twips width) {
    m_columns.at(static_cast<std::size_t>(column)).Width = width;
}

void ListModel::clearRows() {
    ++m_generation;
    if (m_rows.count() == 0)
        return;
    beginResetModel();
    m_rows.clear();
    m_announced = 0;
    m_firstChanged = m_lastChanged = -1;
    m_selectionChanged = false;
    endResetModel();
}

int ListModel::addRow(std::string_view key, std::string_view text) {
    const int row = m_rows.add(key, text);
    notePending();
    return row;
}

void ListModel::setText(int row, int column, std::string_view text) {
    if (m_rows.text(row, column) == text)
        return;
    m_rows.setText(row, column, text);
    noteChanged(row);
}

void ListModel::setIcon(int row, int icon) {
    if (m_rows.icon(row) == icon)
        return;
    m_rows.setIcon(row, icon);
    noteChanged(row);
}

void ListModel::setGhosted(int row, bool ghosted) {
    if (m_rows.flags(row).ghosted == ghosted)
        return;
    m_rows.flags(row).ghosted = ghosted;
    noteChanged(row);
}

void ListModel::setChecked(int row, bool isChecked) {
    if (m_rows.flags(row).isChecked == isChecked)
        return;
    m_rows.flags(row).isChecked = isChecked;
    noteChanged(row);
}

void ListModel::setSelected(int row, bool selected) {
    if (m_rows.flags(row).selected == selected)
        return;
    m_rows.flags(row).selected = selected;
    m_selectionChanged = true;
    notePending();
}

void ListModel::setSmallIcons(const ImageList& images) {
    m_smallIcons = images;
    if (m_announced > 0 && !m_columns.empty())
        Q_EMIT dataChanged(index(0, 0), index(m_announced - 1, 0));
}

void ListModel::showCheckBoxes(bool shown) {
    m_checkBoxes = shown;
    if (m_announced > 0 && !m_columns.empty())
        Q_EMIT dataChanged(index(0, 0), index(m_announced - 1, 0));
}

void ListModel::announce() {
    m_pending = false;
    if (m_firstChanged >= 0 && !m_columns.empty())
        Q_EMIT dataChanged(index(m_firstChanged, 0), index(m_lastChanged, columnCount() - 1));
    m_firstChanged = m_lastChanged = -1;
    if (m_announced == m_rows.count())
        return;
    beginInsertRows({}, m_announced, m_rows.count() - 1);
    m_announced = m_rows.count();
    endInsertRows();
}

bool ListModel::takeSelectionChanged() noexcept {
    return std::exchange(m_selectionChanged, false);
}

QItemSelection ListModel::selection() const {
    QItemSelection selected;
    for (int row = 0; row < m_announced && !m_columns.empty(); ++row) {
        const int first = row;
        while (row < m_announced && m_rows.flags(row).selected)
            ++row;
        if (row > first)
            selected.append(QItemSelectionRange(index(first, 0), index(row - 1, columnCount() - 1)));
    }
    return selected;
}

void ListModel::noteSelection(const QItemSelection& rows, bool selected) {
    for (const QItemSelectionRange& range : rows) {
        for (int row = range.top(); row <= range.bottom() && row < m_rows.count(); ++row)
            m_rows.flags(row).selected = selected;
    }
}

int ListModel::rowCount(const QModelIndex& parent) const {
    return parent.isValid() ? 0 : m_announced;
}

int ListModel::columnCount(const QModelIndex& parent) const {
    return parent.isValid() ? 0 : static_cast<int>(m_columns.size());
}

QVariant ListModel::data(const QModelIndex& index, int role) const {
    if (!checkIndex(index, CheckIndexOption::IndexIsValid))
        return {};
    switch (role) {
    case Qt::DisplayRole:
        return asOneLine(m_rows.text(index.row(), index.column()));
    case Qt::TextAlignmentRole:
        return QVariant::fromValue(
            alignmentOf(m_columns[static_cast<std::size_t>(index.column())].Alignment));
    case kGhostedRole:
        return static_cast<bool>(m_rows.flags(index.row()).ghosted);
    default:
        return index.column() == 0 ? iconData(index.row(), role) : QVariant();
    }
}

QVariant ListModel::iconData(int row, int role) const {
    const ImageList::Image* image = m_smallIcons.find(m_rows.icon(row));
    if (role == Qt::DecorationRole && image != nullptr)
        return image->icon;
    if (role == Qt::AccessibleTextRole && image != nullptr && !image->accessibleName.isEmpty()) {
        const QString text = asOneLine(m_rows.text(row, 0));
        return text.isEmpty() ? image->accessibleName : QString(image->accessibleName + u' ' + text);
    }
    if (role == Qt::CheckStateRole && m_checkBoxes)
        return m_rows.flags(row).isChecked ? Qt::Checked : Qt::Unchecked;
    return {};
}

bool ListModel::setData(const QModelIndex& index, const QVariant& value, int role) {
    if (role != Qt::CheckStateRole || !m_checkBoxes || index.column() != 0)
        return false;
    m_rows.flags(index.row()).isChecked = value.toInt() == Qt::Checked;
    Q_EMIT dataChanged(index, index, {Qt::CheckStateRole});
    return true;
}

QVariant ListModel::headerData(int section, Qt::Orientation orientation, int role) const {
    if (orientation != Qt::Horizontal || section < 0 || section >= columnCount())
        return {};
    const ColumnHeader& column = m_columns[static_cast<std::size_t>(section)];
    if (role == Qt::DisplayRole)
        return asOneLine(column.Text);
    if (role == Qt::TextAlignmentRole)
        return QVariant::fromValue(alignmentOf(column.Alignment));
    return {};
}

Qt::ItemFlags ListModel::flags(const QModelIndex& index) const {
    Qt::ItemFlags flags = Qt::ItemIsEnabled | Qt::ItemIsSelectable | Qt::ItemNeverHasChildren;
    if (m_checkBoxes && index.column() == 0)
        flags |= Qt::ItemIsUserCheckable;
    return flags;
}

void ListModel::notePending() {
    if (!std::exchange(m_pending, true))
        Q_EMIT changesPending();
}

void ListModel::noteChanged(int row) {
    if (row >= m_announced)
        return;
    m_firstChanged = m_firstChanged < 0 ? row : std::min(m_firstChanged, row);
    m_lastChanged = std::max(m_lastChanged, row);
    notePending();
}

} // namespace forms
