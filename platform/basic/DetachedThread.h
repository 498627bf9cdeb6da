// SPDX-FileCopyrightText: 2026 The qmClient authors
// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once
// Work on a thread that nobody joins: for calls that may never return. The thread goes on until they do, or
// until the process ends; so the work must own, or share, everything it touches.

#include <functional>

namespace basic {

// Error 7 without a thread. What `work` throws ends the process.
void startDetached(std::function<void()> work);

} // namespace basic
