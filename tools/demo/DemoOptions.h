// SPDX-FileCopyrightText: 2026 The qmClient authors
// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once
// What the demo server's command line asks for.

#include <chrono>
#include <optional>
#include <span>
#include <stdexcept>
#include <string>

namespace demo {

struct DemoOptions {
    std::string folder;
    std::chrono::milliseconds every{5000};
    std::optional<unsigned> calls; // without end if not given
    int mailbox = 0;               // 0: the demo mailboxes by turns
    bool help = false;

    // Throws UsageError.
    static DemoOptions parse(std::span<const std::string> arguments);
};

class UsageError : public std::runtime_error {
public:
    using std::runtime_error::runtime_error;
};

} // namespace demo
