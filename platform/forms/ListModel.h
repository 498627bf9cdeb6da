// SPDX-FileCopyrightText: 2026 The qmClient authors
// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once
// Columns and rows of a list view as the toolkit's view asks for them. What the program adds or changes is
// announced to the view later and at once (announce()), so that a fill of any length costs the view one
// insertion; changesPending() says when the first change after an announcement was made. Indexes count from
// 0. User-interface thread.

#include "platform/forms/ColumnHeader.h"
#include "platform/forms/ImageList.h"
#include "platform/forms/RowStore.h"

#include <QAbstractTableModel>
#include <QItemSelection>

#include <cstdint>
#include <string_view>
#include <vector>

namespace forms {

inline constexpr int kGhostedRole = Qt::UserRole;

class ListModel : public QAbstractTableModel {
    Q_OBJECT
public:
    using QAbstractTableModel::QAbstractTableModel;

    const std::vector<ColumnHeader>& columns() const noexcept { return m_columns; }
    void clearColumns();
    void addColumn(const ColumnHeader& column);
    void setColumnWidth(int column, basic::Twips width);

    const RowStore& rows() const noexcept { return m_rows; }
    // Changes with each clearing: a row index is good only for the generation that it was got in.
    std::uint32_t generation() const noexcept { return m_generation; }
    void clearRows();
    int addRow(std::string_view key, std::string_view text);
    void setText(int row, int column, std::string_view text);
    void setIcon(int row, int icon);
    void setGhosted(int row, bool ghosted);
    void setChecked(int row, bool isChecked);
    void setSelected(int row, bool selected);

    const ImageList& smallIcons() const noexcept { return m_smallIcons; }
    void setSmallIcons(const ImageList& images);
    void showCheckBoxes(bool shown);
    bool hasCheckBoxes() const noexcept { return m_checkBoxes; }

    // Tells the view all that changed since the last time.
    void announce();
    // True once after the program changed the selection of rows.
    bool takeSelectionChanged() noexcept;
    QItemSelection selection() const;
    // What the view selected or deselected on its own.
    void noteSelection(const QItemSelection& rows, bool selected);

    int rowCount(const QModelIndex& parent = {}) const override;
    int columnCount(const QModelIndex& parent = {}) const override;
    QVariant data(const QModelIndex& index, int role) const override;
    bool setData(const QModelIndex& index, const QVariant& value, int role) override;
    QVariant headerData(int section, Qt::Orientation orientation, int role) const override;
    Qt::ItemFlags flags(const QModelIndex& index) const override;

Q_SIGNALS:
    void changesPending();

private:
    void notePending();
    void noteChanged(int row);
    QVariant iconData(int row, int role) const;

    std::vector<ColumnHeader> m_columns;
    RowStore m_rows;
    ImageList m_smallIcons;
    int m_announced = 0;
    int m_firstChanged = -1;
    int m_lastChanged = -1;
    std::uint32_t m_generation = 0;
    bool m_pending = false;
    bool m_selectionChanged = false;
    bool m_checkBoxes = false;
};

} // namespace forms
