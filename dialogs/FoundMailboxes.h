// SPDX-FileCopyrightText: 2026 The qmClient authors
// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once
// What a search for the mailboxes of a server brought: an answer for each mailbox whose database could be
// opened, in ascending order of the numbers. Mailboxes that are not available are left out.

#include "dialogs/MailboxInfo.h"
#include "platform/basic/RuntimeError.h"

#include <cstdint>
#include <optional>
#include <vector>

namespace dialogs {

struct FoundMailbox {
    std::int32_t number = 0;
    std::optional<MailboxInfo> info;            // nothing: the row is missing
    std::optional<basic::RuntimeError> failure; // of the statement
};

struct FoundMailboxes {
    std::vector<FoundMailbox> mailboxes;
    std::optional<basic::RuntimeError> failure; // the folders could not be listed
};

} // namespace dialogs
