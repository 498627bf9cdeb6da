// SPDX-FileCopyrightText: 2026 The qmClient authors
// SPDX-License-Identifier: GPL-3.0-or-later
#include "platform/jet/CommitWordWriter.h"

#include "platform/basic/RuntimeError.h"
#include "platform/jet/ByteEditor.h"
#include "platform/jet/CommitWords.h"

#include <array>

namespace jet {

using namespace format;

void advanceCommitWord(share::File& file, std::size_t user) {
    if (user >= commitWords::kCount)
        throw basic::RuntimeError(basic::kSubscriptOutOfRange);
    const auto next = static_cast<std::uint16_t>(CommitWords::read(file).words[user] + 1U);
    std::array<std::byte, 2> bytes{};
    ByteEditor(bytes).put16(0, next > commitWords::kDamaged ? next : commitWords::kInitial);
    file.write(commitWords::kOffset + 2 * user, bytes);
}

} // namespace jet
