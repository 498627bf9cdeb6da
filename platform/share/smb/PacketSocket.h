// SPDX-FileCopyrightText: 2026 The qmClient authors
// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once
// One end of the connection between the client and qmshare: whole packets, never parts of them, never larger
// than kMaximumPacketBytes. Sending never waits: with one request on the way at a time there is always room.
// Closes its end when it goes. One thread at a time.

#include "platform/share/FileDescriptor.h"

#include <cstddef>
#include <optional>
#include <span>
#include <utility>
#include <vector>

namespace share::smb {

class PacketSocket {
public:
    PacketSocket() = default;
    // A sequenced-packet socket of the operating system.
    explicit PacketSocket(FileDescriptor descriptor) : m_descriptor(std::move(descriptor)) {}

    // Two connected ends; error 75 when the system has none left.
    static std::pair<PacketSocket, PacketSocket> pair();

    int descriptor() const noexcept { return m_descriptor.get(); }
    // False when the other end is gone.
    bool send(std::span<const std::byte> packet);
    // Waits for the next packet unless told otherwise by the socket's own mode. Nothing when the other end is
    // gone, or sent something larger than any packet.
    std::optional<std::vector<std::byte>> receive();

private:
    FileDescriptor m_descriptor;
};

} // namespace share::smb
