// SPDX-FileCopyrightText: 2026 The qmClient authors
// SPDX-License-Identifier: GPL-3.0-or-later
#include "platform/registry/Key.h"

#include "platform/basic/TextCompare.h"

namespace registry {

const Key* Key::find(std::string_view name) const {
    const auto found = m_keyIndex.find(basic::foldCase(name));
    return found == m_keyIndex.end() ? nullptr : &*found->second;
}

Key* Key::find(std::string_view name) {
    const auto found = m_keyIndex.find(basic::foldCase(name));
    return found == m_keyIndex.end() ? nullptr : &*found->second;
}

Key& Key::obtain(std::string_view name) {
    if (Key* const present = find(name))
        return *present;
    const auto added = m_keys.emplace(m_keys.end(), std::string(name));
    m_keyIndex.emplace(basic::foldCase(name), added);
    return *added;
}

bool Key::remove(std::string_view name) {
    const auto found = m_keyIndex.find(basic::foldCase(name));
    if (found == m_keyIndex.end())
        return false;
    m_keys.erase(found->second);
    m_keyIndex.erase(found);
    return true;
}

const Value* Key::findValue(std::string_view name) const {
    const auto found = m_valueIndex.find(basic::foldCase(name));
    return found == m_valueIndex.end() ? nullptr : &*found->second;
}

void Key::setValue(Value value) {
    std::string folded = basic::foldCase(value.name);
    const auto found = m_valueIndex.find(folded);
    if (found != m_valueIndex.end()) {
        found->second->type = value.type;
        found->second->data = std::move(value.data);
        return;
    }
    m_valueIndex.emplace(std::move(folded), m_values.insert(m_values.end(), std::move(value)));
}

bool Key::removeValue(std::string_view name) {
    const auto found = m_valueIndex.find(basic::foldCase(name));
    if (found == m_valueIndex.end())
        return false;
    m_values.erase(found->second);
    m_valueIndex.erase(found);
    return true;
}

bool Key::operator==(const Key& other) const {
    return m_name == other.m_name && m_values == other.m_values && m_keys == other.m_keys;
}

} // namespace registry
