// SPDX-FileCopyrightText: 2026 The qmClient authors
// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once
// What a mailbox says of itself in its own database.

#include "platform/jet/Connection.h"

#include <optional>
#include <string>

namespace dialogs {

struct MailboxInfo {
    std::string name;
    std::string description;
    bool operator==(const MailboxInfo&) const = default;
};

// Nothing when the row is missing; a field that is Null reads as empty. Throws what the statement throws. Any
// thread.
std::optional<MailboxInfo> readMailboxInfo(jet::Connection& connection);

} // namespace dialogs
