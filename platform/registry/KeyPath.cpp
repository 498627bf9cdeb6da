// SPDX-FileCopyrightText: 2026 The qmClient authors
// SPDX-License-Identifier: GPL-3.0-or-later
#include "platform/registry/KeyPath.h"

#include "platform/basic/Utf8.h"
#include "platform/registry/Limits.h"

#include <algorithm>

namespace registry {
namespace {

bool isControl(char c) noexcept {
    return static_cast<unsigned char>(c) < 0x20;
}

bool isStorableKeyName(std::string_view name) {
    return !name.empty() && std::none_of(name.begin(), name.end(), isControl) && basic::isValidUtf8(name) &&
           basic::utf8ToUtf16(name).size() <= kMaxKeyName;
}

} // namespace

std::vector<std::string_view> splitPath(std::string_view path) {
    std::vector<std::string_view> names;
    if (path.empty())
        return names;
    for (;;) {
        const std::size_t end = path.find('\\');
        names.push_back(path.substr(0, end));
        if (end == std::string_view::npos)
            return names;
        path.remove_prefix(end + 1);
    }
}

bool isStorableKeyPath(const std::vector<std::string_view>& names) {
    return !names.empty() && names.size() <= kMaxDepth &&
           std::all_of(names.begin(), names.end(), isStorableKeyName);
}

bool isStorableValueName(std::string_view name) {
    return basic::isValidUtf8(name) && basic::utf8ToUtf16(name).size() <= kMaxValueName;
}

const Key* findPath(const Key& from, const std::vector<std::string_view>& names) {
    const Key* key = &from;
    for (const std::string_view name : names) {
        key = key->find(name);
        if (key == nullptr)
            return nullptr;
    }
    return key;
}

Key& obtainPath(Key& from, const std::vector<std::string_view>& names) {
    Key* key = &from;
    for (const std::string_view name : names)
        key = &key->obtain(name);
    return *key;
}

bool removePath(Key& from, const std::vector<std::string_view>& names) {
    Key* key = &from;
    for (std::size_t i = 0; i + 1 < names.size(); ++i) {
        key = key->find(names[i]);
        if (key == nullptr)
            return false;
    }
    return !names.empty() && key->remove(names.back());
}

} // namespace registry
