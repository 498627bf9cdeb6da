// SPDX-FileCopyrightText: 2026 The qmClient authors
// SPDX-License-Identifier: GPL-3.0-or-later
#include "platform/forms/ListItem.h"

#include "platform/basic/RuntimeError.h"
#include "platform/forms/ListModel.h"

namespace forms {
namespace {

int checkedColumn(const ListModel& model, int j) {
    if (j < 1 || static_cast<std::size_t>(j) >= model.columns().size())
        throw basic::RuntimeError(basic::kInvalidPropertyValue);
    return j;
}

} // namespace

ListItem::ListItem(ListModel& model, int row)
    : m_model(&model), m_row(row), m_generation(model.generation()) {}

ListModel& ListItem::model() const {
    if (m_generation != m_model->generation())
        throw basic::RuntimeError(basic::kElementNotFound);
    return *m_model;
}

int ListItem::Index() const {
    model();
    return m_row + 1;
}

std::string_view ListItem::Key() const {
    return model().rows().key(m_row);
}
std::string_view ListItem::Text() const {
    return model().rows().text(m_row, 0);
}
void ListItem::SetText(std::string_view text) {
    model().setText(m_row, 0, text);
}

std::string_view ListItem::SubItems(int j) const {
    return model().rows().text(m_row, checkedColumn(model(), j));
}
void ListItem::SetSubItems(int j, std::string_view text) {
    model().setText(m_row, checkedColumn(model(), j), text);
}

int ListItem::SmallIcon() const {
    return model().rows().icon(m_row);
}
void ListItem::SetSmallIcon(int index) {
    model().setIcon(m_row, index);
}

bool ListItem::Ghosted() const {
    return model().rows().flags(m_row).ghosted;
}
void ListItem::SetGhosted(bool ghosted) {
    model().setGhosted(m_row, ghosted);
}
bool ListItem::Selected() const {
    return model().rows().flags(m_row).selected;
}
void ListItem::SetSelected(bool selected) {
    model().setSelected(m_row, selected);
}
bool ListItem::Checked() const {
    return model().rows().flags(m_row).isChecked;
}
void ListItem::SetChecked(bool isChecked) {
    model().setChecked(m_row, isChecked);
}

} // namespace forms
