// SPDX-FileCopyrightText: 2026 The qmClient authors
// SPDX-License-Identifier: GPL-3.0-or-later
#include "platform/share/smb/PacketSocket.h"

#include "platform/basic/RuntimeError.h"
#include "platform/share/smb/Messages.h"

#include <sys/socket.h>

#include <array>
#include <cerrno>

namespace share::smb {
namespace {

// The system's default would do; this keeps an administrator's small one from cutting into us.
void makeRoom(int descriptor) {
    constexpr int kRoom = 2 * static_cast<int>(kMaximumPacketBytes);
    ::setsockopt(descriptor, SOL_SOCKET, SO_SNDBUF, &kRoom, sizeof kRoom);
}

} // namespace

std::pair<PacketSocket, PacketSocket> PacketSocket::pair() {
    std::array<int, 2> ends{};
    if (::socketpair(AF_UNIX, SOCK_SEQPACKET | SOCK_CLOEXEC, 0, ends.data()) != 0)
        throw basic::errorFromErrno(errno, "prepare", "the connection to a server");
    for (const int end : ends)
        makeRoom(end);
    return {PacketSocket(FileDescriptor(ends[0])), PacketSocket(FileDescriptor(ends[1]))};
}

bool PacketSocket::send(std::span<const std::byte> packet) {
    for (;;) {
        const ssize_t sent = ::send(m_descriptor.get(), packet.data(), packet.size(), MSG_NOSIGNAL);
        if (sent >= 0)
            return static_cast<std::size_t>(sent) == packet.size();
        if (errno != EINTR)
            return false;
    }
}

std::optional<std::vector<std::byte>> PacketSocket::receive() {
    std::vector<std::byte> packet(kMaximumPacketBytes);
    for (;;) {
        // With MSG_TRUNC the answer is the packet's own size, also where it did not fit.
        const ssize_t size = ::recv(m_descriptor.get(), packet.data(), packet.size(), MSG_TRUNC);
        if (size < 0 && errno == EINTR)
            continue;
        if (size <= 0 || static_cast<std::size_t>(size) > packet.size())
            return std::nullopt;
        packet.resize(static_cast<std::size_t>(size));
        return packet;
    }
}

} // namespace share::smb
