// SPDX-FileCopyrightText: 2026 The qmClient authors
// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once
// Builds one packet: little-endian numbers, texts and bytes with their length in front (four bytes). A text
// or run of bytes beyond its limit is error 5.

#include <concepts>
#include <cstddef>
#include <cstdint>
#include <span>
#include <string_view>
#include <utility>
#include <vector>

namespace share::smb {

class PacketWriter {
public:
    // Room for `capacity` bytes from the start: a password in it is not left behind by a growing buffer.
    explicit PacketWriter(std::size_t capacity) { m_bytes.reserve(capacity); }

    template <std::unsigned_integral Number>
    void number(Number value) {
        for (std::size_t i = 0; i < sizeof(Number); ++i)
            m_bytes.push_back(static_cast<std::byte>(static_cast<std::uint64_t>(value) >> (8U * i)));
    }
    void text(std::string_view value, std::size_t limit) {
        bytes(std::as_bytes(std::span(value.data(), value.size())), limit);
    }
    void bytes(std::span<const std::byte> value, std::size_t limit);

    std::size_t size() const noexcept { return m_bytes.size(); }
    std::vector<std::byte> take() noexcept { return std::move(m_bytes); }

private:
    std::vector<std::byte> m_bytes;
};

} // namespace share::smb
