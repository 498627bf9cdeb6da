// SPDX-FileCopyrightText: 2026 The qmClient authors
// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once
// The objects of a collection in their order, with 0 as the first index: as they were when it was asked for,
// or, where looking costs time, when it was first counted or read. Holds a share of each. One thread.

#include "platform/basic/RuntimeError.h"

#include <cstdint>
#include <functional>
#include <memory>
#include <utility>
#include <vector>

namespace mediagraph {

template <typename Item_>
class ItemCollection {
public:
    using Pointer = std::shared_ptr<Item_>;
    using Look = std::function<std::vector<Pointer>()>;

    ItemCollection() = default;
    explicit ItemCollection(std::vector<Pointer> items) : m_items(std::move(items)) {}
    // Whatever `look` throws is thrown by who needs the items, and the next one looks again.
    explicit ItemCollection(Look look) : m_look(std::move(look)) {}

    std::int32_t Count() const { return static_cast<std::int32_t>(items().size()); }

    // Error 9 outside of 0 to Count() - 1.
    const Pointer& Item(std::int32_t index) const {
        if (index < 0 || index >= Count())
            throw basic::RuntimeError(basic::kSubscriptOutOfRange);
        return items()[static_cast<std::size_t>(index)];
    }

    auto begin() const { return items().begin(); }
    auto end() const { return items().end(); }

private:
    const std::vector<Pointer>& items() const {
        if (m_look) {
            m_items = m_look();
            m_look = nullptr;
        }
        return m_items;
    }

    mutable Look m_look; // none: m_items are there
    mutable std::vector<Pointer> m_items;
};

} // namespace mediagraph
