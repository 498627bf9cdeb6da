// SPDX-FileCopyrightText: 2026 The qmClient authors
// SPDX-License-Identifier: GPL-3.0-or-later
#include "platform/registry/Registry.h"

#include "platform/registry/KeyPath.h"
#include "platform/registry/StoreError.h"

#include <iterator>

namespace registry {
namespace {

// KEY_SET_VALUE, KEY_CREATE_SUB_KEY, KEY_CREATE_LINK, DELETE, WRITE_DAC, WRITE_OWNER and the generic rights
// that contain them.
constexpr std::uint32_t kChangingRights =
    0x2 | 0x4 | 0x20 | 0x10000 | 0x40000 | 0x80000 | 0x10000000 | 0x40000000;

bool isText(std::uint32_t type) noexcept {
    return type == kRegSz || type == kRegExpandSz || type == kRegMultiSz;
}

// Carries out one call; a failure of the file becomes the code that the platform's call would give.
template <typename Call>
Result guarded(Call&& call) {
    try {
        return {call(), {}};
    } catch (const StoreError& error) {
        return {error.code(), error.description()};
    }
}

Bytes storedData(std::uint32_t type, const Bytes& data) {
    if (!isText(type))
        return data;
    const bool isTerminated = !data.empty() && data.back() == 0;
    const std::string text(data.begin(), data.end() - (isTerminated ? 1 : 0));
    Bytes stored = textData(text);
    if (!isTerminated)
        stored.resize(stored.size() - 2);
    return stored;
}

Bytes queriedData(const Value& value) {
    if (!isText(value.type))
        return value.data;
    const std::string text = textOf(value.data);
    return {text.begin(), text.end()};
}

} // namespace

Registry::Registry(const RegistryPaths& paths, SystemCalls& calls)
    : m_currentUser("HKEY_CURRENT_USER", calls,
                    paths.currentUser.empty() ? std::vector<std::string>{} : std::vector{paths.currentUser}),
      m_localMachine("HKEY_LOCAL_MACHINE", calls, paths.localMachine) {}

Result Registry::RegOpenKey(Root root, std::string_view path, OpenKey& opened) {
    return guarded([&] {
        if (hive(root).find(path) == nullptr)
            return kFileNotFound;
        opened = {root, std::string(path), canWrite(root)};
        return kSuccess;
    });
}

Result Registry::RegOpenKeyEx(Root root, std::string_view path, std::uint32_t accessMask, OpenKey& opened) {
    return guarded([&] {
        if (hive(root).find(path) == nullptr)
            return kFileNotFound;
        const bool changes = (accessMask & kChangingRights) != 0;
        if (changes && !canWrite(root))
            return kAccessDenied;
        opened = {root, std::string(path), changes};
        return kSuccess;
    });
}

Result Registry::RegCreateKey(Root root, std::string_view path, OpenKey& opened) {
    return guarded([&] {
        Hive& home = hive(root);
        if (!isStorableKeyPath(splitPath(home.fullPath(path))))
            return kInvalidParameter;
        if (!canWrite(root))
            return kAccessDenied;
        if (home.find(path) == nullptr)
            home.carryOut({Operation::Kind::CreateKey, home.fullPath(path), {}});
        opened = {root, std::string(path), true};
        return kSuccess;
    });
}

Result Registry::RegQueryValueEx(const OpenKey& key, std::string_view name, QueriedValue& value) {
    return guarded([&] {
        const Key* const found = hive(key.root).find(key.path);
        const Value* const stored = found == nullptr ? nullptr : found->findValue(name);
        if (stored == nullptr)
            return kFileNotFound;
        value = {stored->type, queriedData(*stored)};
        return kSuccess;
    });
}

Result Registry::RegSetValueEx(const OpenKey& key, std::string_view name, std::uint32_t type,
                               const Bytes& data) {
    return guarded([&] {
        if (!key.canWrite)
            return kAccessDenied;
        if (!isStorableValueName(name))
            return kInvalidParameter;
        Hive& home = hive(key.root);
        home.carryOut({Operation::Kind::SetValue, home.fullPath(key.path),
                       Value{std::string(name), type, storedData(type, data)}});
        return kSuccess;
    });
}

Result Registry::RegEnumKey(const OpenKey& key, std::uint32_t index, std::string& name) {
    return guarded([&] {
        const Key* const found = hive(key.root).find(key.path);
        if (found == nullptr)
            return kFileNotFound;
        if (index >= found->keys().size())
            return kNoMoreItems;
        name = std::next(found->keys().begin(), static_cast<std::ptrdiff_t>(index))->name();
        return kSuccess;
    });
}

Result Registry::RegDeleteKey(const OpenKey& key, std::string_view path) {
    return guarded([&] {
        if (!key.canWrite)
            return kAccessDenied;
        std::string target = key.path;
        if (!path.empty())
            target.append(target.empty() ? "" : "\\").append(path);
        Hive& home = hive(key.root);
        const Key* const found = home.find(target);
        if (found == nullptr)
            return kFileNotFound;
        if (target.empty() || !found->keys().empty())
            return kAccessDenied;
        home.carryOut({Operation::Kind::DeleteKey, home.fullPath(target), {}});
        return kSuccess;
    });
}

} // namespace registry
