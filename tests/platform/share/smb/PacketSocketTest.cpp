// SPDX-FileCopyrightText: 2026 The qmClient authors
// SPDX-License-Identifier: GPL-3.0-or-later
#include "platform/share/smb/PacketSocket.h"

#include "platform/share/smb/Messages.h"

#include <gtest/gtest.h>

#include <optional>
#include <vector>

namespace share::smb {
namespace {

TEST(PacketSocket, BringsTheLargestPacketOverWhole) {
    auto [here, there] = PacketSocket::pair();
    std::vector<std::byte> packet(kMaximumPacketBytes, std::byte{0xAB});
    ASSERT_TRUE(here.send(packet));
    EXPECT_EQ(there.receive(), packet);
}

TEST(PacketSocket, RefusesALargerOne) {
    auto [here, there] = PacketSocket::pair();
    ASSERT_TRUE(here.send(std::vector<std::byte>(kMaximumPacketBytes + 1)));
    EXPECT_EQ(there.receive(), std::nullopt);
}

} // namespace
} // namespace share::smb
