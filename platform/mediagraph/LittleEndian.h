// SPDX-FileCopyrightText: 2026 The qmClient authors
// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once
// Numbers as RIFF files hold them, lowest byte first.

#include <cstddef>
#include <cstdint>
#include <span>
#include <vector>

namespace mediagraph {

// The caller has checked that `width` bytes are there.
inline std::uint32_t littleEndianAt(std::span<const std::byte> bytes, std::size_t at, std::size_t width) {
    std::uint32_t number = 0;
    for (std::size_t i = 0; i < width; ++i)
        number |= std::to_integer<std::uint32_t>(bytes[at + i]) << (8U * i);
    return number;
}

inline void appendLittleEndian(std::vector<std::byte>& bytes, std::uint32_t number, std::size_t width) {
    for (std::size_t i = 0; i < width; ++i)
        bytes.push_back(static_cast<std::byte>(number >> (8U * i)));
}

} // namespace mediagraph
