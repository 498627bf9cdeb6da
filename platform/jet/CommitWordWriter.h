// SPDX-FileCopyrightText: 2026 The qmClient authors
// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once
// Tells other programs that a database has changed, by counting up one of the counters at the end of page 0.
// A counter never becomes 0 or 1: these mean that its writer is at work or met damage.
// See docs/jet4-format.md, "Counting while the server writes".

#include "platform/share/File.h"

#include <cstddef>

namespace jet {

// `user` is the number under which the writer holds its user lock, 0 for one that has the database to itself.
void advanceCommitWord(share::File& file, std::size_t user);

} // namespace jet
