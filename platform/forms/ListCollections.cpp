// SPDX-FileCopyrightText: 2026 The qmClient authors
// SPDX-License-Identifier: GPL-3.0-or-later
#include "platform/forms/ListCollections.h"

#include "platform/basic/RuntimeError.h"
#include "platform/forms/ListModel.h"

namespace forms {
namespace {

int zeroBased(int index, int count) {
    if (index < 1 || index > count)
        throw basic::RuntimeError(basic::kElementNotFound);
    return index - 1;
}

} // namespace

int ColumnHeaderCollection::Count() const {
    return m_model.columnCount();
}
void ColumnHeaderCollection::Clear() {
    m_model.clearColumns();
}

void ColumnHeaderCollection::Add(std::string_view text, basic::Twips width, std::int32_t alignment,
                                 std::string_view key) {
    m_model.addColumn({std::string(text), width, alignment, std::string(key)});
}

const ColumnHeader& ColumnHeaderCollection::Item(int index) const {
    return m_model.columns()[static_cast<std::size_t>(zeroBased(index, Count()))];
}

int ListItemCollection::Count() const {
    return m_model.rows().count();
}
void ListItemCollection::Clear() {
    m_model.clearRows();
}

ListItem ListItemCollection::Add(std::string_view key, std::string_view text) {
    return {m_model, m_model.addRow(key, text)};
}

ListItem ListItemCollection::Item(int index) const {
    return {m_model, zeroBased(index, Count())};
}

ListItem ListItemCollection::Item(std::string_view key) const {
    const std::optional<int> row = m_model.rows().find(key);
    if (!row)
        throw basic::RuntimeError(basic::kElementNotFound);
    return {m_model, *row};
}

} // namespace forms
