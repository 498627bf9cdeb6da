// SPDX-FileCopyrightText: 2026 The qmClient authors
// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once
// A row of a list view, as a light handle to be copied at will. It is good until the list's items are
// cleared; using it after that raises 35601. Indexes count from 1; texts are UTF-8. What is returned as a
// view stays valid until the items are cleared. User-interface thread.

#include <cstdint>
#include <string_view>

namespace forms {

class ListModel;

class ListItem {
public:
    ListItem(ListModel& model, int row);

    int Index() const;
    std::string_view Key() const;

    std::string_view Text() const;
    void SetText(std::string_view text);
    // Column j + 1 of the row, j from 1 to the number of columns less 1; error 380 otherwise.
    std::string_view SubItems(int j) const;
    void SetSubItems(int j, std::string_view text);

    // Index into the list's small icons, 0 for none.
    int SmallIcon() const;
    void SetSmallIcon(int index);

    bool Ghosted() const;
    void SetGhosted(bool ghosted);
    // Selecting by the program neither moves the focus nor raises an event.
    bool Selected() const;
    void SetSelected(bool selected);
    bool Checked() const;
    void SetChecked(bool isChecked);

    bool operator==(const ListItem& other) const = default;

private:
    ListModel& model() const;

    ListModel* m_model;
    int m_row;
    std::uint32_t m_generation;
};

} // namespace forms
