// SPDX-FileCopyrightText: 2026 The qmClient authors
// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once
// The platform's collection: items in the order of adding, by position from 1 or by key. Keys compare without
// case, not every item needs one. Copies share the items that are pointers. One thread at a time.

#include "platform/basic/RuntimeError.h"
#include "platform/basic/TextCompare.h"

#include <algorithm>
#include <cstddef>
#include <cstdint>
#include <string>
#include <string_view>
#include <utility>
#include <vector>

namespace basic {

template <typename Item>
class Collection {
public:
    class const_iterator {
    public:
        using Base = typename std::vector<std::pair<std::string, Item>>::const_iterator;
        explicit const_iterator(Base at) : m_at(at) {}
        const Item& operator*() const { return m_at->second; }
        const_iterator& operator++() {
            ++m_at;
            return *this;
        }
        bool operator==(const const_iterator&) const = default;

    private:
        Base m_at;
    };

    std::int32_t Count() const noexcept { return static_cast<std::int32_t>(m_entries.size()); }

    // An empty key means none. Error 457 for a key that is in use.
    void Add(Item item, std::string_view key = {}) {
        if (contains(key))
            throw RuntimeError(kKeyInUse);
        m_entries.emplace_back(std::string(key), std::move(item));
    }

    // Error 9 outside of 1 to Count().
    const Item& at(std::int32_t position) const { return m_entries[indexOf(position)].second; }
    // Error 5 for a key that is not there.
    const Item& at(std::string_view key) const { return m_entries[indexOf(key)].second; }
    const std::string& keyAt(std::int32_t position) const { return m_entries[indexOf(position)].first; }
    bool contains(std::string_view key) const { return !key.empty() && find(key) != m_entries.end(); }

    void Remove(std::int32_t position) { erase(indexOf(position)); }
    void Remove(std::string_view key) { erase(indexOf(key)); }

    const_iterator begin() const { return const_iterator(m_entries.begin()); }
    const_iterator end() const { return const_iterator(m_entries.end()); }

private:
    auto find(std::string_view key) const {
        return std::find_if(m_entries.begin(), m_entries.end(),
                            [key](const auto& entry) { return equalText(entry.first, key); });
    }

    std::size_t indexOf(std::int32_t position) const {
        if (position < 1 || position > Count())
            throw RuntimeError(kSubscriptOutOfRange);
        return static_cast<std::size_t>(position - 1);
    }

    std::size_t indexOf(std::string_view key) const {
        const auto found = key.empty() ? m_entries.end() : find(key);
        if (found == m_entries.end())
            throw RuntimeError(kInvalidProcedureCall);
        return static_cast<std::size_t>(found - m_entries.begin());
    }

    void erase(std::size_t index) { m_entries.erase(m_entries.begin() + static_cast<std::ptrdiff_t>(index)); }

    std::vector<std::pair<std::string, Item>> m_entries;
};

} // namespace basic
