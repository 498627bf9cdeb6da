// SPDX-FileCopyrightText: 2026 The qmClient authors
// SPDX-License-Identifier: GPL-3.0-or-later
#include "platform/mediagraph/Waiting.h"

#include <thread>

namespace mediagraph {

bool SleepWaiting::pass(std::chrono::milliseconds time) {
    std::this_thread::sleep_for(time);
    return true;
}

} // namespace mediagraph
