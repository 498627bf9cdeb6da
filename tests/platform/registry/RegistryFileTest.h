// SPDX-FileCopyrightText: 2026 The qmClient authors
// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once
// One settings file in a folder of its own, and what is found in it afterwards.

#include "platform/registry/KeyPath.h"
#include "platform/registry/RegistryFile.h"
#include "platform/registry/ResultCodes.h"
#include "platform/registry/StoreError.h"
#include "tests/platform/registry/FaultyCalls.h"
#include "tests/platform/registry/RegistryFolder.h"

#include <gtest/gtest.h>
#include <sys/stat.h>

#include <string>
#include <vector>

namespace registry {

inline Operation setText(const std::string& path, const std::string& name, const std::string& text) {
    return {Operation::Kind::SetValue, path, Value{name, kRegSz, textData(text)}};
}

class RegistryFileTest : public ::testing::Test {
protected:
    std::string textAt(const std::string& path, const std::string& name) {
        RegistryFile fresh(m_real, {m_path});
        const Key* const key = findPath(fresh.tree(), splitPath(path));
        const Value* const value = key == nullptr ? nullptr : key->findValue(name);
        if (value == nullptr)
            return "(missing)";
        const std::string text = textOf(value->data);
        return text.substr(0, text.find('\0'));
    }
    void put(const std::string& lines) const { RegistryFolder::put(m_path, RegistryFolder::settings(lines)); }
    std::string content() const { return RegistryFolder::content(m_path); }
    mode_t modeOf(const std::string& path) const {
        struct stat status {};
        EXPECT_EQ(::stat(path.c_str(), &status), 0) << path;
        return status.st_mode & 07777;
    }
    static std::string failureOf(RegistryFile& file, const std::vector<Operation>& operations) {
        try {
            file.change(operations);
        } catch (const StoreError& error) {
            return error.description();
        }
        return "no failure";
    }

    RegistryFolder m_folder;
    std::string m_path = m_folder.userFile();
    SystemCalls m_real;
    FaultyCalls m_calls;
    RegistryFile m_file{m_calls, {m_path}};
};

} // namespace registry
