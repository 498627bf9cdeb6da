// SPDX-FileCopyrightText: 2026 The qmClient authors
// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once
// A registry over files in a folder of its own, and what another program would read there.

#include "platform/registry/Registry.h"
#include "tests/platform/registry/FaultyCalls.h"
#include "tests/platform/registry/RegistryFolder.h"

#include <gtest/gtest.h>

#include <string>
#include <string_view>

namespace registry {

inline Bytes bytesOf(std::string_view text) {
    return {text.begin(), text.end()};
}

class RegistryTest : public ::testing::Test {
protected:
    void putUser(const std::string& lines) const {
        m_folder.put(m_folder.userFile(), m_folder.settings(lines));
    }
    void putMachine(const std::string& lines) const {
        m_folder.put(m_folder.machineFile(), m_folder.settings(lines));
    }
    std::string userContent() const { return m_folder.content(m_folder.userFile()); }
    std::int32_t open(Root root, const std::string& path, std::uint32_t mask) {
        OpenKey key;
        return m_registry.RegOpenKeyEx(root, path, mask, key).code;
    }
    std::int32_t set(const std::string& path, const std::string& name, const std::string& text) {
        OpenKey key;
        const Result created = m_registry.RegCreateKey(Root::CurrentUser, path, key);
        return created ? m_registry.RegSetValueEx(key, name, kRegSz, bytesOf(text + '\0')).code
                       : created.code;
    }
    std::string get(Registry& registry, const std::string& path, const std::string& name) {
        OpenKey key;
        QueriedValue value;
        if (!registry.RegOpenKey(Root::CurrentUser, path, key) || !registry.RegQueryValueEx(key, name, value))
            return "(missing)";
        return {value.data.begin(), value.data.end()};
    }
    std::string stored(const std::string& path, const std::string& name) {
        Registry other(m_folder.paths(), m_calls);
        return get(other, path, name);
    }
    std::int32_t remove(const std::string& path) {
        OpenKey key;
        const Result opened = m_registry.RegOpenKeyEx(Root::CurrentUser, path, kKeyEverySpecificRight, key);
        return opened ? m_registry.RegDeleteKey(key, "").code : opened.code;
    }

    RegistryFolder m_folder;
    FaultyCalls m_calls;
    Registry m_registry{m_folder.paths(), m_calls};
};

} // namespace registry
