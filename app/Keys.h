// SPDX-FileCopyrightText: 2026 The qmClient authors
// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once
// The keys of list rows ("K" and the call's ID) and of tabs ("KEY" and the mailbox's ID), and what follows
// their prefix. A status line has no key: what is left of it is the empty text.

#include "data/MailboxKey.h"

#include <algorithm>
#include <cstddef>
#include <string_view>

namespace app {

inline constexpr std::size_t kTabKeyPrefix = data::kMailboxKeyPrefix.size();
inline constexpr std::size_t kItemKeyPrefix = 1;

inline std::string_view withoutPrefix(std::string_view key, std::size_t length) {
    return key.substr(std::min(length, key.size()));
}

} // namespace app
