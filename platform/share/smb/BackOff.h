// SPDX-FileCopyrightText: 2026 The qmClient authors
// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once
// When a server that did not answer may be tried again: pauses double from one second to a minute, each
// spread a little so that many clients do not come back at the same moment. One thread at a time.

#include "platform/share/smb/BootTime.h"

#include <optional>

namespace share::smb {

class BackOff {
public:
    static constexpr std::chrono::milliseconds kFirstPause{1'000};
    static constexpr std::chrono::milliseconds kLongestPause{60'000};

    // `spread` answers a number from 0 to 1 for each pause, of which up to a fifth is taken off by it.
    using Spread = std::function<double()>;

    BackOff(ElapsedTime now, Spread spread) : m_now(std::move(now)), m_spread(std::move(spread)) {}

    bool isPausing() const { return m_next && m_now() < *m_next; }
    void failed();
    void succeeded() noexcept;

private:
    ElapsedTime m_now;
    Spread m_spread;
    std::chrono::milliseconds m_pause = kFirstPause; // the next one
    std::optional<std::chrono::milliseconds> m_next;
};

} // namespace share::smb
