// SPDX-FileCopyrightText: 2026 The qmClient authors
// SPDX-License-Identifier: GPL-3.0-or-later
#include "platform/mediagraph/Aside.h"

#include "platform/basic/RuntimeError.h"

#include <algorithm>

namespace mediagraph {

bool Patience::isOver(std::size_t steps, Clock::time_point now) {
    const auto turn = std::min<Clock::duration>(now - std::exchange(m_lastLook, now), kLongestTurn);
    m_total += turn;
    m_withoutProgress = std::exchange(m_steps, steps) == steps ? m_withoutProgress + turn : Clock::duration{};
    return m_withoutProgress > m_limits.withoutProgress || m_total > m_limits.total;
}

void Aside::late(const std::string& text) {
    throw basic::RuntimeError(basic::kDeviceIoError, text);
}

} // namespace mediagraph
