// SPDX-FileCopyrightText: 2026 The qmClient authors
// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once
// The key of a mailbox in the configuration and of its tab: "KEY" and the mailbox's ID.

#include <string>
#include <string_view>

namespace data {

inline constexpr std::string_view kMailboxKeyPrefix = "KEY";

inline std::string mailboxKey(std::string_view id) {
    return std::string(kMailboxKeyPrefix).append(id);
}

} // namespace data
