// SPDX-FileCopyrightText: 2026 The qmClient authors
// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once
// A folder that can be shared as a server's hidden share: two mailboxes with calls and messages.
// See docs/demo-server.md.

#include "platform/basic/Variant.h"

#include <string>

namespace demo {

inline constexpr int kFirstMailbox = 12;
inline constexpr int kSecondMailbox = 15;

// The folder of a mailbox below a share's folder.
std::string mailboxFolder(const std::string& share, int mailbox);

// Makes the mailboxes 12 (12 calls) and 15 (15 calls) below `folder`, which is made if it is missing. The
// newest call is some minutes before `now`, local wall-clock time. Refuses a folder that holds one of them
// already.
void createDemoShare(const std::string& folder, const basic::Date& now);

} // namespace demo
