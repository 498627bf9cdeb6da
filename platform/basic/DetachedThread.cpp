// SPDX-FileCopyrightText: 2026 The qmClient authors
// SPDX-License-Identifier: GPL-3.0-or-later
#include "platform/basic/DetachedThread.h"

#include "platform/basic/RuntimeError.h"

#include <string>
#include <system_error>
#include <thread>
#include <utility>

namespace basic {

void startDetached(std::function<void()> work) {
    try {
        std::thread(std::move(work)).detach();
    } catch (const std::system_error& error) {
        throw RuntimeError(kOutOfMemory, std::string("No thread: ").append(error.what()));
    }
}

} // namespace basic
