// SPDX-FileCopyrightText: 2026 The qmClient authors
// SPDX-License-Identifier: GPL-3.0-or-later
#include "platform/share/smb/MessageDecoder.h"
#include "platform/share/smb/MessageEncoder.h"
#include "tests/platform/share/ExpectError.h"

#include <gtest/gtest.h>

#include <cerrno>

namespace share::smb {
namespace {

Request fullRequest() {
    return {.verb = Verb::Write,
            .mode = 2,
            .handle = 0x01020304,
            .length = 0x05060708,
            .offset = 0x1112131415161718,
            .path = "\\\\srv01\\Quillamar_0$\\MBX",
            .data = {std::byte{0}, std::byte{255}}};
}

Response fullResponse() {
    return {.stage = Stage::Path,
            .failure = ENOENT,
            .isFolder = true,
            .more = true,
            .number = 0xFEDCBA9876543210,
            .data = {std::byte{7}}};
}

TEST(Messages, BringARequestOver) {
    const Request request = decodeRequest(encode(fullRequest()));
    EXPECT_EQ(request.verb, Verb::Write);
    EXPECT_EQ(request.mode, 2);
    EXPECT_EQ(request.handle, 0x01020304U);
    EXPECT_EQ(request.length, 0x05060708U);
    EXPECT_EQ(request.offset, 0x1112131415161718U);
    EXPECT_EQ(request.path, "\\\\srv01\\Quillamar_0$\\MBX");
    EXPECT_EQ(request.data, fullRequest().data);
}

TEST(Messages, BringAResponseOver) {
    const Response response = decodeResponse(encode(fullResponse()));
    EXPECT_EQ(response.stage, Stage::Path);
    EXPECT_EQ(response.failure, ENOENT);
    EXPECT_TRUE(response.isFolder);
    EXPECT_TRUE(response.more);
    EXPECT_EQ(response.number, 0xFEDCBA9876543210U);
    EXPECT_EQ(response.data, fullResponse().data);
}

TEST(Messages, RefuseARequestCutAnywhere) {
    const std::vector<std::byte> packet = encode(fullRequest());
    for (std::size_t size = 0; size < packet.size(); ++size)
        EXPECT_ERROR(basic::kInternalError, decodeRequest(std::span(packet).first(size))) << size;
}

TEST(Messages, RefuseAResponseCutAnywhere) {
    const std::vector<std::byte> packet = encode(fullResponse());
    for (std::size_t size = 0; size < packet.size(); ++size)
        EXPECT_ERROR(basic::kInternalError, decodeResponse(std::span(packet).first(size))) << size;
}

TEST(Messages, RefuseBytesBeyondTheEnd) {
    std::vector<std::byte> packet = encode(fullRequest());
    packet.push_back(std::byte{0});
    EXPECT_ERROR(basic::kInternalError, decodeRequest(packet));
    packet = encode(fullResponse());
    packet.push_back(std::byte{0});
    EXPECT_ERROR(basic::kInternalError, decodeResponse(packet));
}

TEST(Messages, RefuseUnknownVerbsAndStages) {
    std::vector<std::byte> packet = encode(fullRequest());
    for (const int verb : {0, static_cast<int>(kLastVerb) + 1, 255}) {
        packet[0] = static_cast<std::byte>(verb);
        EXPECT_ERROR(basic::kInternalError, decodeRequest(packet)) << verb;
    }
    packet = encode(fullResponse());
    packet[0] = static_cast<std::byte>(static_cast<int>(kLastStage) + 1);
    EXPECT_ERROR(basic::kInternalError, decodeResponse(packet));
}

TEST(Messages, RefuseAReadLongerThanAPacket) {
    Request request{.verb = Verb::Read, .length = kMaximumDataBytes};
    EXPECT_EQ(decodeRequest(encode(request)).length, kMaximumDataBytes);
    request.length = kMaximumDataBytes + 1;
    EXPECT_ERROR(basic::kInternalError, decodeRequest(encode(request)));
}

TEST(Messages, RefuseAFailureWithoutAStageAndAStageWithoutAFailure) {
    EXPECT_ERROR(basic::kInternalError, decodeResponse(encode(Response{.failure = EIO})));
    EXPECT_ERROR(basic::kInternalError, decodeResponse(encode(Response{.stage = Stage::Path})));
    EXPECT_ERROR(basic::kInternalError,
                 decodeResponse(encode(Response{.stage = Stage::Path, .failure = -1})));
    EXPECT_ERROR(basic::kInternalError,
                 decodeResponse(encode(Response{.stage = Stage::Path, .failure = 4096})));
}

TEST(Messages, AreNotMadeOfFieldsThatAreTooLong) {
    Request request;
    request.path.assign(kMaximumPathBytes + 1, 'x');
    EXPECT_ERROR(basic::kInvalidProcedureCall, encode(request));
    request.path.resize(kMaximumPathBytes);
    request.data.resize(kMaximumDataBytes);
    EXPECT_LE(encode(request).size(), kMaximumPacketBytes);
    request.data.resize(kMaximumDataBytes + 1);
    EXPECT_ERROR(basic::kInvalidProcedureCall, encode(request));
}

} // namespace
} // namespace share::smb
