// SPDX-FileCopyrightText: 2026 The qmClient authors
// SPDX-License-Identifier: GPL-3.0-or-later
// Any bytes as a packet between the client and qmshare: it is refused, or it is exactly what the encoder
// makes of what was read.

#include "platform/basic/RuntimeError.h"
#include "platform/share/smb/FolderPage.h"
#include "platform/share/smb/LogOnRecord.h"
#include "platform/share/smb/MessageDecoder.h"
#include "platform/share/smb/MessageEncoder.h"

#include <algorithm>
#include <cstdlib>

namespace {

using Packet = std::span<const std::byte>;

template <typename ThereAndBack>
void check(Packet packet, ThereAndBack&& thereAndBack) {
    try {
        if (!std::ranges::equal(thereAndBack(packet), packet))
            std::abort();
    } catch (const basic::RuntimeError& error) {
        if (error.number() != basic::kInternalError)
            std::abort();
    }
}

void checkFolderPage(Packet packet) {
    if (packet.size() > share::smb::kMaximumDataBytes)
        return; // no packet brings so much
    check(packet, [](Packet page) {
        std::size_t taken = 0;
        return share::smb::encodeFolderPage(share::smb::decodeFolderPage(page), taken);
    });
}

} // namespace

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
    const Packet packet = std::as_bytes(std::span(data, size));
    check(packet, [](Packet p) { return share::smb::encode(share::smb::decodeRequest(p)); });
    check(packet, [](Packet p) { return share::smb::encode(share::smb::decodeResponse(p)); });
    check(packet, [](Packet p) { return share::smb::encodeLogOn(share::smb::decodeLogOn(p)); });
    checkFolderPage(packet);
    return 0;
}
