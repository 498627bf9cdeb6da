// SPDX-FileCopyrightText: 2026 The qmClient authors
// SPDX-License-Identifier: GPL-3.0-or-later
#include "platform/jet/CommitWords.h"

#include "platform/jet/Place.h"

#include <algorithm>
#include <span>

namespace jet {

CommitWords CommitWords::read(share::File& file) {
    CommitWords result;
    const std::span<std::byte> bytes = std::as_writable_bytes(std::span(result.words));
    if (file.read(format::commitWords::kOffset, bytes) != bytes.size())
        Place{file.name()}.fail("the header page is cut short");
    return result;
}

bool CommitWords::isWriting() const noexcept {
    return std::ranges::find(words, format::commitWords::kWriting) != words.end();
}

bool CommitWords::isDamaged() const noexcept {
    return std::ranges::find(words, format::commitWords::kDamaged) != words.end();
}

} // namespace jet
