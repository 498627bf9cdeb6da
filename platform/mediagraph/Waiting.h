// SPDX-FileCopyrightText: 2026 The qmClient authors
// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once
// How the calling thread spends the time while another thread reads a file or asks the sound server for it.
// The program lets painting and system events go on here, but no commands and no timers of its own.

#include <chrono>

namespace mediagraph {

class Waiting {
public:
    Waiting() = default;
    Waiting(const Waiting&) = delete;
    Waiting& operator=(const Waiting&) = delete;
    virtual ~Waiting() = default;

    // Called again and again until the work is done or its time is over. Returns after about `time`; may
    // return sooner. False: the program ends, and nobody waits any more. Must not throw.
    [[nodiscard]] virtual bool pass(std::chrono::milliseconds time) = 0;
};

// Just sleeps: for programs and tests without a window.
class SleepWaiting final : public Waiting {
public:
    bool pass(std::chrono::milliseconds time) override;
};

} // namespace mediagraph
