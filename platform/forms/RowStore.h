// SPDX-FileCopyrightText: 2026 The qmClient authors
// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once
// The rows of a list view as plain memory: texts lie in one growing pool, a row is a few words, keys are
// found by hash. A fill of 100,000 rows is a handful of allocations, and clearing gives all of it back. Row
// and column indexes count from 0 here; a cell that was never set is empty. Views of texts stay valid until
// clear(), also when the cell is set anew. Knows nothing of windows; one thread.

#include <cstdint>
#include <memory>
#include <optional>
#include <string_view>

namespace forms {

struct RowFlags {
    bool selected : 1 = false;
    bool ghosted : 1 = false;
    bool isChecked : 1 = false;
};

class RowStore {
public:
    RowStore();
    ~RowStore();
    RowStore(const RowStore&) = delete;
    RowStore& operator=(const RowStore&) = delete;

    int count() const noexcept;
    void clear();

    // Error 35602 for a key that is there already; any number of rows may have the empty key.
    int add(std::string_view key, std::string_view text);
    std::optional<int> find(std::string_view key) const;

    std::string_view key(int row) const;
    std::string_view text(int row, int column) const;
    void setText(int row, int column, std::string_view text);

    int icon(int row) const;
    void setIcon(int row, int icon);
    RowFlags& flags(int row);
    const RowFlags& flags(int row) const;

private:
    struct Content;
    std::unique_ptr<Content> m_content;
};

} // namespace forms
