// SPDX-FileCopyrightText: 2026 The qmClient authors
// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once
// The dispatcher of the command bar: runs the command with the clicked tool's name. Names compare with case;
// a name without a command does nothing. Failures of a command are reported as frmMain's ab_ToolClick.
// User-interface thread.

#include "errors/ErrorHandler.h"
#include "errors/Procedure.h"

#include <functional>
#include <string>
#include <string_view>
#include <vector>

namespace app {

class Commands {
public:
    // Its statements are steps of the dispatcher's procedure.
    using Command = std::function<void(errors::Procedure&)>;

    explicit Commands(errors::ErrorHandler& errorHandler) : m_errors(errorHandler) {}

    // Commands are compared in the order in which they are added; the first match runs.
    void add(std::string toolName, Command command);
    // One that is a single statement.
    void add(std::string toolName, std::function<void()> statement);

    void ab_ToolClick(std::string_view toolName);

private:
    struct Entry {
        std::string toolName;
        Command run;
    };

    errors::ErrorHandler& m_errors;
    std::vector<Entry> m_entries;
};

} // namespace app
