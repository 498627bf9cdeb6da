// SPDX-FileCopyrightText: 2026 The qmClient authors
// SPDX-License-Identifier: GPL-3.0-or-later
#include "platform/mediagraph/Aside.h"

#include "platform/basic/RuntimeError.h"

#include <system_error>
#include <thread>

namespace mediagraph {

bool Patience::isOver(std::size_t steps) {
    const auto now = Clock::now();
    if (std::exchange(m_steps, steps) != steps)
        m_lastStep = now;
    return now - m_lastStep > m_limits.withoutProgress || now - m_start > m_limits.total;
}

void Aside::start(std::function<void()> body) {
    try {
        std::thread(std::move(body)).detach();
    } catch (const std::system_error& error) {
        throw basic::RuntimeError(basic::kOutOfMemory, std::string("No thread: ").append(error.what()));
    }
}

void Aside::late(const std::string& text) {
    throw basic::RuntimeError(basic::kDeviceIoError, text);
}

} // namespace mediagraph
