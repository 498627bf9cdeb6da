// SPDX-FileCopyrightText: 2026 The qmClient authors
// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once
// Which of a server's folders are mailboxes: those whose name is a number as the server writes it, in decimal
// digits without sign, blanks or leading zeros, of at most 31 bits.

#include <cstdint>
#include <optional>
#include <string>
#include <string_view>
#include <vector>

namespace dialogs {

std::optional<std::int32_t> mailboxNumber(std::string_view folderName);

// The mailboxes among these folders, in ascending order.
std::vector<std::int32_t> mailboxNumbers(const std::vector<std::string>& folderNames);

} // namespace dialogs
