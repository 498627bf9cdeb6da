// SPDX-FileCopyrightText: 2026 The qmClient authors
// SPDX-License-Identifier: GPL-3.0-or-later
#include "app/Commands.h"

#include "errors/Procedure.h"

#include <algorithm>
#include <utility>

namespace app {

void Commands::add(std::string toolName, Command command) {
    m_entries.push_back({std::move(toolName), std::move(command)});
}

void Commands::add(std::string toolName, std::function<void()> statement) {
    add(std::move(toolName),
        [statement = std::move(statement)](errors::Procedure& proc) { proc.step(statement); });
}

void Commands::ab_ToolClick(std::string_view toolName) {
    errors::Procedure proc{m_errors, "frmMain", "ab_ToolClick"};
    const auto found = std::find_if(m_entries.begin(), m_entries.end(),
                                    [&](const Entry& entry) { return entry.toolName == toolName; });
    if (found != m_entries.end())
        found->run(proc);
}

} // namespace app
