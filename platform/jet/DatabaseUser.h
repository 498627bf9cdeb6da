// SPDX-FileCopyrightText: 2026 The qmClient authors
// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once
// Who enters a database: the names that a lock file shows to others. Plain data.

#include <string>

namespace jet {

struct DatabaseUser {
    std::string computer;
    std::string account = "Admin"; // of a provider that was given no user

    // With the name of this machine.
    static DatabaseUser ofThisMachine();
    std::string text() const { return account + " on " + computer; }
};

} // namespace jet
