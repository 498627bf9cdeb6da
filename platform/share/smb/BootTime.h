// SPDX-FileCopyrightText: 2026 The qmClient authors
// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once
// A clock that only runs forward and counts the time in which the machine slept: after a night asleep, a
// pause is over and a connection is old.

#include <chrono>
#include <functional>

namespace share::smb {

using ElapsedTime = std::function<std::chrono::milliseconds()>;

std::chrono::milliseconds bootTime();

} // namespace share::smb
