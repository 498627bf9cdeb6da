// SPDX-FileCopyrightText: 2026 The qmClient authors
// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once
// Takes one packet apart. Nothing is read beyond its end, whatever the packet says; a packet that is cut
// short, or a length beyond the limit, is error 51. The bytes must outlive the reader.

#include <concepts>
#include <cstddef>
#include <cstdint>
#include <span>
#include <string>

namespace share::smb {

class PacketReader {
public:
    explicit PacketReader(std::span<const std::byte> packet) : m_rest(packet) {}

    template <std::unsigned_integral Number>
    Number number() {
        std::uint64_t value = 0;
        const std::span<const std::byte> bytes = next(sizeof(Number));
        for (std::size_t i = 0; i < sizeof(Number); ++i)
            value |= std::to_integer<std::uint64_t>(bytes[i]) << (8U * i);
        return static_cast<Number>(value);
    }
    // 0 or 1; anything else is an error.
    bool flag();
    // An enumeration whose values run from `first` to `last`.
    template <typename Enumeration>
    Enumeration choice(Enumeration first, Enumeration last) {
        const auto value = number<std::uint8_t>();
        if (value < static_cast<std::uint8_t>(first) || value > static_cast<std::uint8_t>(last))
            fail("an unknown code");
        return static_cast<Enumeration>(value);
    }
    std::span<const std::byte> bytes(std::size_t limit);
    std::string text(std::size_t limit);

    bool atEnd() const noexcept { return m_rest.empty(); }
    void expectEnd() const;
    [[noreturn]] static void fail(const char* what);

private:
    std::span<const std::byte> next(std::size_t count);

    std::span<const std::byte> m_rest;
};

} // namespace share::smb
