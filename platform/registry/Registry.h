// SPDX-FileCopyrightText: 2026 The qmClient authors
// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once
// The stand-in for the platform's registry calls, with their return codes. HKEY_CURRENT_USER and
// HKEY_LOCAL_MACHINE are a settings file each (RegistryPaths); a file may hold keys of other roots, which are
// kept and not used. Every call sees the files as they are at that moment. A change outside of a Batch is
// saved before the call returns. The machine's file can be changed only by who may write it. One thread at a
// time; the system calls must outlive the registry, handles and batches must not. Format:
// docs/registry-format.md.

#include "platform/registry/Hive.h"
#include "platform/registry/RegistryPaths.h"
#include "platform/registry/ResultCodes.h"

#include <string>
#include <string_view>

namespace registry {

enum class Root { CurrentUser, LocalMachine };

// Access masks of the platform.
inline constexpr std::uint32_t kKeyRead = 0x20019;
inline constexpr std::uint32_t kKeyAllAccess = 0xF003F;
inline constexpr std::uint32_t kKeyEverySpecificRight = 63;

// An open key; closing it is its end of life. It goes stale, not dangling, when the key is deleted.
struct OpenKey {
    Root root = Root::CurrentUser;
    std::string path; // without the root's name
    bool canWrite = false;
};

// A value as the calls with byte texts answer it: text is UTF-8, NULs included, other data as it is.
struct QueriedValue {
    std::uint32_t type = 0;
    Bytes data;
};

class Registry {
public:
    explicit Registry(const RegistryPaths& paths, SystemCalls& calls);
    Registry(const Registry&) = delete;
    Registry& operator=(const Registry&) = delete;
    ~Registry() = default;

    // With as many rights as there are.
    Result RegOpenKey(Root root, std::string_view path, OpenKey& opened);
    // Code 5 when the mask asks for more than reading and the root cannot be changed.
    Result RegOpenKeyEx(Root root, std::string_view path, std::uint32_t accessMask, OpenKey& opened);
    Result RegCreateKey(Root root, std::string_view path, OpenKey& opened);
    Result RegQueryValueEx(const OpenKey& key, std::string_view name, QueriedValue& value);
    // Data of the text types is UTF-8 with its final NUL.
    Result RegSetValueEx(const OpenKey& key, std::string_view name, std::uint32_t type, const Bytes& data);
    // Code 259 after the last one.
    Result RegEnumKey(const OpenKey& key, std::uint32_t index, std::string& name);
    // An empty path deletes the opened key itself. Code 5 for a key that has sub-keys.
    Result RegDeleteKey(const OpenKey& key, std::string_view path);

private:
    friend class Batch;

    Hive& hive(Root root) noexcept { return root == Root::CurrentUser ? m_currentUser : m_localMachine; }
    bool canWrite(Root root) { return root == Root::CurrentUser || m_localMachine.isWritable(); }

    Hive m_currentUser;
    Hive m_localMachine;
    bool m_hasBatch = false;
};

} // namespace registry
