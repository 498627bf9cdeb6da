// SPDX-FileCopyrightText: 2026 The qmClient authors
// SPDX-License-Identifier: GPL-3.0-or-later
#include "platform/forms/RowStore.h"

#include "platform/basic/RuntimeError.h"

#include <memory_resource>
#include <string>
#include <unordered_map>
#include <vector>

namespace forms {
namespace {

constexpr std::size_t kFirstPoolBlock = 4096;

struct Row {
    std::string_view key;
    std::int32_t icon = 0;
    RowFlags flags;
};

std::size_t at(int index) {
    return static_cast<std::size_t>(index);
}

} // namespace

// Gone as a whole when the list is cleared: the pool cannot give back single texts.
struct RowStore::Content {
    std::pmr::monotonic_buffer_resource pool{kFirstPoolBlock};
    std::vector<Row> rows;
    std::vector<std::vector<std::string_view>> columns;
    std::pmr::unordered_map<std::string_view, int> byKey{&pool};

    std::string_view keep(std::string_view text) {
        if (text.empty())
            return {};
        auto* bytes = static_cast<char*>(pool.allocate(text.size(), 1));
        text.copy(bytes, text.size());
        return {bytes, text.size()};
    }
};

RowStore::RowStore() : m_content(std::make_unique<Content>()) {}
RowStore::~RowStore() = default;

int RowStore::count() const noexcept {
    return static_cast<int>(m_content->rows.size());
}

void RowStore::clear() {
    m_content = std::make_unique<Content>();
}

int RowStore::add(std::string_view key, std::string_view text) {
    const int row = count();
    Row added;
    if (!key.empty()) {
        if (m_content->byKey.contains(key))
            throw basic::RuntimeError(basic::kKeyNotUnique);
        added.key = m_content->keep(key);
    }
    m_content->rows.push_back(added);
    if (!key.empty())
        m_content->byKey.emplace(added.key, row);
    setText(row, 0, text);
    return row;
}

std::optional<int> RowStore::find(std::string_view key) const {
    const auto found = m_content->byKey.find(key);
    return found == m_content->byKey.end() ? std::nullopt : std::optional(found->second);
}

std::string_view RowStore::key(int row) const {
    return m_content->rows[at(row)].key;
}

std::string_view RowStore::text(int row, int column) const {
    if (at(column) >= m_content->columns.size() || at(row) >= m_content->columns[at(column)].size())
        return {};
    return m_content->columns[at(column)][at(row)];
}

void RowStore::setText(int row, int column, std::string_view text) {
    auto& columns = m_content->columns;
    if (at(column) >= columns.size())
        columns.resize(at(column) + 1);
    auto& cells = columns[at(column)];
    if (at(row) < cells.size()) {
        cells[at(row)] = m_content->keep(text);
        return;
    }
    if (text.empty())
        return;
    // Not resize(row + 1): that would move all cells for each row that is added.
    while (cells.size() < at(row))
        cells.emplace_back();
    cells.push_back(m_content->keep(text));
}

int RowStore::icon(int row) const {
    return m_content->rows[at(row)].icon;
}
void RowStore::setIcon(int row, int icon) {
    m_content->rows[at(row)].icon = icon;
}
RowFlags& RowStore::flags(int row) {
    return m_content->rows[at(row)].flags;
}
const RowFlags& RowStore::flags(int row) const {
    return m_content->rows[at(row)].flags;
}

} // namespace forms
