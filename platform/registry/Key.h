// SPDX-FileCopyrightText: 2026 The qmClient authors
// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once
// A key with its values and sub-keys, each in the order in which they came. Names compare without case and
// keep their spelling. The tree's root has an empty name; the hives are its sub-keys. A key owns what is
// below it; references stay good until the key itself is removed.

#include "platform/registry/Value.h"

#include <list>
#include <map>
#include <string>
#include <string_view>

namespace registry {

class Key {
public:
    Key() = default;
    explicit Key(std::string name) : m_name(std::move(name)) {}
    Key(Key&&) = default;
    Key& operator=(Key&&) = default;
    Key(const Key&) = delete;
    Key& operator=(const Key&) = delete;
    ~Key() = default;

    const std::string& name() const noexcept { return m_name; }

    const std::list<Key>& keys() const noexcept { return m_keys; }
    const Key* find(std::string_view name) const;
    Key* find(std::string_view name);
    // The sub-key of that name, added at the end when there is none.
    Key& obtain(std::string_view name);
    // With everything below it; false when there is none.
    bool remove(std::string_view name);

    const std::list<Value>& values() const noexcept { return m_values; }
    const Value* findValue(std::string_view name) const;
    // Replaces the value of that name where it stands, keeping the name's spelling, or adds it at the end.
    void setValue(Value value);
    bool removeValue(std::string_view name);

    // Same names, values and order all the way down.
    bool operator==(const Key& other) const;

private:
    template <typename Entry>
    using Index = std::map<std::string, typename std::list<Entry>::iterator, std::less<>>; // by folded name

    std::string m_name;
    std::list<Key> m_keys;
    std::list<Value> m_values;
    Index<Key> m_keyIndex;
    Index<Value> m_valueIndex;
};

} // namespace registry
