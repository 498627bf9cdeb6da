// SPDX-FileCopyrightText: 2026 The qmClient authors
// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once
// The two collections of a list view in the control's terms: indexes count from 1, an unknown index or key
// raises 35601, a key that is there already 35602. They live as long as their list. User-interface thread.

#include "platform/forms/ColumnHeader.h"
#include "platform/forms/ListItem.h"

#include <string_view>

namespace forms {

class ListModel;

class ColumnHeaderCollection {
public:
    explicit ColumnHeaderCollection(ListModel& model) : m_model(model) {}

    int Count() const;
    void Clear();
    void Add(std::string_view text, basic::Twips width, std::int32_t alignment = kColumnLeft,
             std::string_view key = {});
    // Good until the next Add or Clear.
    const ColumnHeader& Item(int index) const;

private:
    ListModel& m_model;
};

class ListItemCollection {
public:
    explicit ListItemCollection(ListModel& model) : m_model(model) {}

    int Count() const;
    void Clear();
    // An item without a key (a status line) has the empty one. The list shows what was added before its next
    // turn of the event loop ends, however many items that are.
    ListItem Add(std::string_view key, std::string_view text);
    ListItem Item(int index) const;
    ListItem Item(std::string_view key) const;

private:
    ListModel& m_model;
};

} // namespace forms
