// SPDX-FileCopyrightText: 2026 The qmClient authors
// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once
// A waiter and the two ends of a line to a server.

#include "app/ShareWaiter.h"
#include "platform/share/smb/PacketSocket.h"

#include <gtest/gtest.h>

#include <chrono>
#include <utility>
#include <vector>

namespace app {

class ShareWaiterTest : public testing::Test {
protected:
    void answer() { m_there.send(std::vector<std::byte>(1)); }
    share::Waited wait(std::chrono::milliseconds atMost = std::chrono::minutes{60}) {
        return m_waiter.untilReadable(m_here.descriptor(), atMost);
    }

    std::pair<share::smb::PacketSocket, share::smb::PacketSocket> m_ends = share::smb::PacketSocket::pair();
    share::smb::PacketSocket& m_here = m_ends.first;
    share::smb::PacketSocket& m_there = m_ends.second;
    ShareWaiter m_waiter;
};

} // namespace app
