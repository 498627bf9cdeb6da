// SPDX-FileCopyrightText: 2026 The qmClient authors
// SPDX-License-Identifier: GPL-3.0-or-later
#include "platform/share/smb/MessageDecoder.h"

#include "platform/share/smb/PacketReader.h"

namespace share::smb {
namespace {

constexpr std::int32_t kLargestFailure = 4095; // the kernel's own bound of an errno value

std::vector<std::byte> copied(std::span<const std::byte> bytes) {
    return {bytes.begin(), bytes.end()};
}

} // namespace

Request decodeRequest(std::span<const std::byte> packet) {
    PacketReader reader(packet);
    Request request;
    request.verb = reader.choice(Verb::LogOn, kLastVerb);
    request.mode = reader.number<std::uint8_t>();
    request.handle = reader.number<std::uint32_t>();
    request.length = reader.number<std::uint32_t>();
    request.offset = reader.number<std::uint64_t>();
    request.path = reader.text(kMaximumPathBytes);
    request.data = copied(reader.bytes(kMaximumDataBytes));
    reader.expectEnd();
    if (request.verb == Verb::Read && request.length > kMaximumDataBytes)
        PacketReader::fail("a read that is too long");
    return request;
}

Response decodeResponse(std::span<const std::byte> packet) {
    PacketReader reader(packet);
    Response response;
    response.stage = reader.choice(Stage::None, kLastStage);
    response.failure = static_cast<std::int32_t>(reader.number<std::uint32_t>());
    response.isFolder = reader.flag();
    response.more = reader.flag();
    response.number = reader.number<std::uint64_t>();
    response.data = copied(reader.bytes(kMaximumDataBytes));
    reader.expectEnd();
    const bool failed = response.stage != Stage::None;
    if (response.failure < 0 || response.failure > kLargestFailure || failed != (response.failure != 0))
        PacketReader::fail("a failure without its stage, or the other way round");
    return response;
}

} // namespace share::smb
