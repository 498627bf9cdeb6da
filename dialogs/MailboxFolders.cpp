// SPDX-FileCopyrightText: 2026 The qmClient authors
// SPDX-License-Identifier: GPL-3.0-or-later
#include "dialogs/MailboxFolders.h"

#include <algorithm>
#include <charconv>

namespace dialogs {

std::optional<std::int32_t> mailboxNumber(std::string_view folderName) {
    std::int32_t number = 0;
    const char* const end = folderName.data() + folderName.size();
    const auto [stop, error] = std::from_chars(folderName.data(), end, number);
    const bool isPlain = error == std::errc() && stop == end && folderName == std::to_string(number);
    return isPlain && number >= 0 ? std::optional(number) : std::nullopt;
}

std::vector<std::int32_t> mailboxNumbers(const std::vector<std::string>& folderNames) {
    std::vector<std::int32_t> numbers;
    for (const std::string& name : folderNames) {
        if (const auto number = mailboxNumber(name))
            numbers.push_back(*number);
    }
    std::sort(numbers.begin(), numbers.end());
    return numbers;
}

} // namespace dialogs
