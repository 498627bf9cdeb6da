// SPDX-FileCopyrightText: 2026 The qmClient authors
// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once
// The 256 counters at the end of page 0. A writer sets its own to 0 while it writes and to the next number
// after that, so that equal words around a reading prove that nobody wrote meanwhile.
// See docs/jet4-format.md, "Counting while the server writes".

#include "platform/jet/Format.h"
#include "platform/share/File.h"

#include <array>
#include <cstdint>

namespace jet {

struct CommitWords {
    std::array<std::uint16_t, format::commitWords::kCount> words{};

    // Throws kProviderFailure when the file ends before them.
    static CommitWords read(share::File& file);

    bool isWriting() const noexcept;
    // A writer met damage; the database needs repair.
    bool isDamaged() const noexcept;
    bool operator==(const CommitWords&) const = default;
};

} // namespace jet
