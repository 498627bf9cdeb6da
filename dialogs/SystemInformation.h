// SPDX-FileCopyrightText: 2026 The qmClient authors
// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once
// Starts the workstation's system-information program, where the machine's registry says which one that is.
// What it is given must outlive it; user-interface thread.

#include "platform/forms/MessageBoxes.h"
#include "platform/registry/Registry.h"

#include <functional>
#include <string>

namespace dialogs {

// Starts the program with that path, which is taken as it is: no shell, no search path. Throws when it
// cannot.
using StartProgram = std::function<void(const std::string& path)>;

class SystemInformation {
public:
    SystemInformation(registry::Registry& registry, forms::MessageBoxes& messageBoxes, StartProgram start)
        : m_registry(registry), m_messageBoxes(messageBoxes), m_start(std::move(start)) {}

    // Every failure ends in the same message box.
    void StartSysInfo();

private:
    bool start();
    bool look(std::string_view keyName, std::string_view valueName, std::string& value);

    registry::Registry& m_registry;
    forms::MessageBoxes& m_messageBoxes;
    StartProgram m_start;
};

} // namespace dialogs
