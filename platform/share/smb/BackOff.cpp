// SPDX-FileCopyrightText: 2026 The qmClient authors
// SPDX-License-Identifier: GPL-3.0-or-later
#include "platform/share/smb/BackOff.h"

#include <algorithm>

namespace share::smb {
namespace {

constexpr double kSpreadShare = 0.2;

} // namespace

void BackOff::failed() {
    const double shortened = static_cast<double>(m_pause.count()) * (1.0 - kSpreadShare * m_spread());
    m_next = m_now() + std::chrono::milliseconds(static_cast<std::chrono::milliseconds::rep>(shortened));
    m_pause = std::min(2 * m_pause, kLongestPause);
}

void BackOff::succeeded() noexcept {
    m_next.reset();
    m_pause = kFirstPause;
}

} // namespace share::smb
