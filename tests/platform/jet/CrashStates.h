// SPDX-FileCopyrightText: 2026 The qmClient authors
// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once
// Every state in which a crash can leave a file whose writes were recorded: after each prefix of the writes;
// with any choice of the writes between two syncs, which covers every order a disk may give them; and with
// one of the chosen writes torn at every sector, the sectors before or those behind the tear being the new
// ones.

#include "tests/platform/jet/RecordingFile.h"

#include <functional>
#include <string>

namespace jet::test {

struct CrashCounts {
    std::size_t prefixes = 0;
    std::size_t reorderings = 0;
    std::size_t torn = 0;
};

struct CrashState {
    const FileImage& image;
    std::string what;                         // for messages
    const RecordedWrite* tornWrite = nullptr; // null when every write is whole
};

inline constexpr std::size_t kSector = 512;

// Calls `visit` for each of them.
CrashCounts forEachCrashState(const FileImage& before, const std::vector<WriteGroup>& groups,
                              const std::function<void(const CrashState&)>& visit);

} // namespace jet::test
