// SPDX-FileCopyrightText: 2026 The qmClient authors
// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once
// Puts together little-endian bytes of a length that is known only at the end: rows, definitions, fields.

#include <cstddef>
#include <cstdint>
#include <cstring>
#include <span>
#include <vector>

namespace jet {

using Bytes = std::vector<std::byte>;

class ByteBuilder {
public:
    void add8(std::uint8_t value) { add(value); }
    void add16(std::uint16_t value) { add(value); }
    void add32(std::uint32_t value) { add(value); }
    void add64(std::uint64_t value) { add(value); }
    void addBytes(std::span<const std::byte> from) {
        m_bytes.insert(m_bytes.end(), from.begin(), from.end());
    }
    void addZeros(std::size_t count) { m_bytes.resize(m_bytes.size() + count); }

    std::size_t size() const noexcept { return m_bytes.size(); }
    Bytes& bytes() noexcept { return m_bytes; }
    Bytes take() { return std::move(m_bytes); }

private:
    template <typename Value>
    void add(Value value) {
        const std::size_t at = m_bytes.size();
        m_bytes.resize(at + sizeof(Value));
        std::memcpy(m_bytes.data() + at, &value, sizeof(Value));
    }

    Bytes m_bytes;
};

} // namespace jet
