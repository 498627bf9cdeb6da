// SPDX-FileCopyrightText: 2026 The qmClient authors
// SPDX-License-Identifier: GPL-3.0-or-later
#include "platform/share/smb/PacketWriter.h"

#include "platform/basic/RuntimeError.h"

namespace share::smb {

void PacketWriter::bytes(std::span<const std::byte> value, std::size_t limit) {
    if (value.size() > limit)
        throw basic::RuntimeError(basic::kInvalidProcedureCall, "a field of a packet that is too long");
    number(static_cast<std::uint32_t>(value.size()));
    m_bytes.insert(m_bytes.end(), value.begin(), value.end());
}

} // namespace share::smb
