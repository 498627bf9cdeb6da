// SPDX-FileCopyrightText: 2026 The qmClient authors
// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once
// The objects of a collection as they were when it was asked for, in their order, with 0 as the first index.
// Holds a share of each.

#include "platform/basic/RuntimeError.h"

#include <cstdint>
#include <memory>
#include <utility>
#include <vector>

namespace mediagraph {

template <typename Item_>
class ItemCollection {
public:
    using Pointer = std::shared_ptr<Item_>;

    ItemCollection() = default;
    explicit ItemCollection(std::vector<Pointer> items) : m_items(std::move(items)) {}

    std::int32_t Count() const noexcept { return static_cast<std::int32_t>(m_items.size()); }

    // Error 9 outside of 0 to Count() - 1.
    const Pointer& Item(std::int32_t index) const {
        if (index < 0 || index >= Count())
            throw basic::RuntimeError(basic::kSubscriptOutOfRange);
        return m_items[static_cast<std::size_t>(index)];
    }

    auto begin() const noexcept { return m_items.begin(); }
    auto end() const noexcept { return m_items.end(); }

private:
    std::vector<Pointer> m_items;
};

} // namespace mediagraph
