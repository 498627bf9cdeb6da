// SPDX-FileCopyrightText: 2026 The qmClient authors
// SPDX-License-Identifier: GPL-3.0-or-later
#include "platform/share/smb/PacketReader.h"

#include "platform/basic/RuntimeError.h"

namespace share::smb {

bool PacketReader::flag() {
    const auto value = number<std::uint8_t>();
    if (value > 1)
        fail("a flag that is neither 0 nor 1");
    return value == 1;
}

std::span<const std::byte> PacketReader::bytes(std::size_t limit) {
    const auto length = number<std::uint32_t>();
    if (length > limit)
        fail("a field that is too long");
    return next(length);
}

std::string PacketReader::text(std::size_t limit) {
    const std::span<const std::byte> content = bytes(limit);
    return {reinterpret_cast<const char*>(content.data()), content.size()};
}

void PacketReader::expectEnd() const {
    if (!atEnd())
        fail("bytes beyond its end");
}

std::span<const std::byte> PacketReader::next(std::size_t count) {
    if (count > m_rest.size())
        fail("a packet that is cut short");
    const std::span<const std::byte> taken = m_rest.first(count);
    m_rest = m_rest.subspan(count);
    return taken;
}

void PacketReader::fail(const char* what) {
    throw basic::RuntimeError(basic::kInternalError,
                              std::string("the packet of the share's program holds ").append(what));
}

} // namespace share::smb
