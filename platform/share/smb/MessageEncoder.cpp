// SPDX-FileCopyrightText: 2026 The qmClient authors
// SPDX-License-Identifier: GPL-3.0-or-later
#include "platform/share/smb/MessageEncoder.h"

#include "platform/share/smb/PacketWriter.h"

namespace share::smb {
namespace {

constexpr std::size_t kHeadBytes = 64; // more than all fields of fixed size take

} // namespace

std::vector<std::byte> encode(const Request& request) {
    PacketWriter packet(kHeadBytes + request.path.size() + request.data.size());
    packet.number(static_cast<std::uint8_t>(request.verb));
    packet.number(request.mode);
    packet.number(request.handle);
    packet.number(request.length);
    packet.number(request.offset);
    packet.text(request.path, kMaximumPathBytes);
    packet.bytes(request.data, kMaximumDataBytes);
    return packet.take();
}

std::vector<std::byte> encode(const Response& response) {
    PacketWriter packet(kHeadBytes + response.data.size());
    packet.number(static_cast<std::uint8_t>(response.stage));
    packet.number(static_cast<std::uint32_t>(response.failure));
    packet.number(static_cast<std::uint8_t>(response.isFolder));
    packet.number(static_cast<std::uint8_t>(response.more));
    packet.number(response.number);
    packet.bytes(response.data, kMaximumDataBytes);
    return packet.take();
}

} // namespace share::smb
