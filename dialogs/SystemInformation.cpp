// SPDX-FileCopyrightText: 2026 The qmClient authors
// SPDX-License-Identifier: GPL-3.0-or-later
#include "dialogs/SystemInformation.h"

#include "dialogs/GetKeyValue.h"
#include "resources/LocalText.h"

#include <exception>
#include <filesystem>
#include <system_error>

namespace dialogs {
namespace {

bool isFile(const std::filesystem::path& path) {
    std::error_code ignored;
    return std::filesystem::is_regular_file(path, ignored);
}

} // namespace

// No trap (frmAbout, StartSysInfo): any failure is said by the message box of its last step.
void SystemInformation::StartSysInfo() {
    bool isStarted = false;
    try {
        isStarted = start();
    } catch (const std::exception&) { // NOLINT(bugprone-empty-catch): the message box says it
    }
    if (!isStarted)
        m_messageBoxes.show(resources::localText(3676, "System Information Is Unavailable At This Time"),
                            forms::kOkOnly, {});
}

bool SystemInformation::start() {
    std::string path;
    if (look("SOFTWARE\\Microsoft\\Shared Tools\\MSINFO", "PATH", path)) {
        m_start(path);
        return true;
    }
    if (!look("SOFTWARE\\Microsoft\\Shared Tools Location", "MSINFO", path))
        return false;
    const std::filesystem::path program = std::filesystem::path(path) / "MSINFO32.EXE";
    if (!isFile(program))
        return false;
    m_start(program.string());
    return true;
}

bool SystemInformation::look(std::string_view keyName, std::string_view valueName, std::string& value) {
    return GetKeyValue(m_registry, registry::Root::LocalMachine, keyName, valueName, value);
}

} // namespace dialogs
