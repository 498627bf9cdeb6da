// SPDX-FileCopyrightText: 2026 The qmClient authors
// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once
// Bits over bytes, the lowest bit of each byte first, as all maps of pages are stored. Refers to the bytes.

#include <algorithm>
#include <bit>
#include <cstddef>
#include <optional>
#include <span>

namespace jet {

template <typename Byte>
class BasicBitSpan {
public:
    explicit BasicBitSpan(std::span<Byte> bytes) : m_bytes(bytes) {}

    std::size_t size() const noexcept { return m_bytes.size() * 8; }
    bool test(std::size_t bit) const { return (m_bytes[bit / 8] & mask(bit)) != std::byte{0}; }
    void set(std::size_t bit, bool on) const {
        Byte& byte = m_bytes[bit / 8];
        byte = on ? byte | mask(bit) : byte & ~mask(bit);
    }
    void clear() const { std::ranges::fill(m_bytes, std::byte{0}); }
    // The first set bit at or after `from`.
    std::optional<std::size_t> firstSet(std::size_t from = 0) const {
        for (std::size_t bit = from; bit < size(); bit += 8 - bit % 8) {
            const auto rest = std::to_integer<unsigned>(m_bytes[bit / 8]) >> bit % 8;
            if (rest != 0)
                return bit + static_cast<std::size_t>(std::countr_zero(rest));
        }
        return std::nullopt;
    }
    // The last set bit before `end`.
    std::optional<std::size_t> lastSet(std::size_t end) const {
        for (std::size_t bit = end; bit > 0; bit = (bit - 1) / 8 * 8) {
            const std::size_t byte = (bit - 1) / 8;
            const auto kept = std::to_integer<unsigned>(m_bytes[byte]) & ((1U << (bit - 8 * byte)) - 1U);
            if (kept != 0)
                return 8 * byte + static_cast<std::size_t>(std::bit_width(kept)) - 1;
        }
        return std::nullopt;
    }

private:
    static std::byte mask(std::size_t bit) { return std::byte{1} << bit % 8; }

    std::span<Byte> m_bytes;
};

using BitSpan = BasicBitSpan<std::byte>;
using ConstBitSpan = BasicBitSpan<const std::byte>;

} // namespace jet
