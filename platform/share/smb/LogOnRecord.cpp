// SPDX-FileCopyrightText: 2026 The qmClient authors
// SPDX-License-Identifier: GPL-3.0-or-later
#include "platform/share/smb/LogOnRecord.h"

#include "platform/share/smb/PacketReader.h"
#include "platform/share/smb/PacketWriter.h"

#include <algorithm>

namespace share::smb {
namespace {

constexpr std::size_t kLengths = 3 * sizeof(std::uint32_t);

std::string_view field(PacketReader& reader, std::size_t limit) {
    const std::span<const std::byte> bytes = reader.bytes(limit);
    if (std::ranges::find(bytes, std::byte{0}) != bytes.end())
        PacketReader::fail("a zero character");
    return {reinterpret_cast<const char*>(bytes.data()), bytes.size()};
}

} // namespace

std::vector<std::byte> encodeLogOn(const Credentials& credentials) {
    PacketWriter data(2 * kMaximumUserBytes + Secret::kMaximumBytes + kLengths);
    data.text(credentials.domain, kMaximumUserBytes);
    data.text(credentials.user, kMaximumUserBytes);
    data.text(credentials.password.view(), Secret::kMaximumBytes);
    return data.take();
}

Credentials decodeLogOn(std::span<const std::byte> data) {
    PacketReader reader(data);
    Credentials credentials;
    credentials.domain = field(reader, kMaximumUserBytes);
    credentials.user = field(reader, kMaximumUserBytes);
    credentials.password = Secret(field(reader, Secret::kMaximumBytes));
    reader.expectEnd();
    return credentials;
}

} // namespace share::smb
