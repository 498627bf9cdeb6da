// SPDX-FileCopyrightText: 2026 The qmClient authors
// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once
// The administrator's table of servers whose share lies in a local folder: values of the registry key
// `Software\Corvantis\Quillamar\1.0\Shares`, named by the server, with the folder as text; the user's entry
// wins over the machine's. Read at each question, so a change counts at once.

#include "platform/registry/Registry.h"

#include <optional>
#include <string>
#include <string_view>

namespace data {

class ShareMappings {
public:
    explicit ShareMappings(registry::Registry& registry) : m_registry(&registry) {}

    // The folder for a server's name, which compares without case and may have its leading backslashes;
    // nothing for a server without entry or with an empty one. Error 75 when a settings file cannot be read.
    std::optional<std::string> operator()(std::string_view server) const;

private:
    std::optional<std::string> find(registry::Root root, std::string_view server) const;

    registry::Registry* m_registry; // a pointer, so that the object can be copied into a function
};

} // namespace data
