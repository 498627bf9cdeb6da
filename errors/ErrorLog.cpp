// SPDX-FileCopyrightText: 2026 The qmClient authors
// SPDX-License-Identifier: GPL-3.0-or-later
#include "errors/ErrorLog.h"

#include "platform/basic/RuntimeError.h"

#include <cstdlib>
#include <filesystem>

namespace errors {
namespace {

std::filesystem::path absoluteFromEnvironment(const char* variable) {
    const char* value = std::getenv(variable);
    const std::filesystem::path path(value ? value : "");
    return path.is_absolute() ? path : std::filesystem::path();
}

} // namespace

LogFile ErrorLog::open() const {
    try {
        return LogFile(m_fileName);
    } catch (const basic::RuntimeError&) {
        if (m_fallbackFolder.empty())
            throw;
    }
    // A folder that cannot be made shows when the file is opened in it.
    std::error_code ignored;
    std::filesystem::create_directories(m_fallbackFolder, ignored);
    return LogFile((std::filesystem::path(m_fallbackFolder) / m_fileName).string());
}

std::string baseNameOf(std::string_view executable) {
    return std::filesystem::path(executable).stem().string();
}

std::string stateFolder() {
    std::filesystem::path base = absoluteFromEnvironment("XDG_STATE_HOME");
    if (base.empty()) {
        const std::filesystem::path home = absoluteFromEnvironment("HOME");
        if (home.empty())
            return {};
        base = home / ".local" / "state";
    }
    return (base / "Corvantis" / "Quillamar").string();
}

} // namespace errors
