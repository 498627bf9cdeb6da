// SPDX-FileCopyrightText: 2026 The qmClient authors
// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once
// Little-endian view over bytes of a database. Every access is checked: one beyond the end throws
// RuntimeError kProviderFailure whose text names the place the view was made with. Refers to the bytes, owns
// nothing.

#include "platform/jet/Place.h"

#include <bit>
#include <cstddef>
#include <cstdint>
#include <cstring>
#include <span>
#include <string_view>

namespace jet {

class ByteView {
public:
    ByteView() = default;
    ByteView(std::span<const std::byte> bytes, const Place& place) : m_bytes(bytes), m_place(place) {}

    std::size_t size() const noexcept { return m_bytes.size(); }
    std::span<const std::byte> bytes() const noexcept { return m_bytes; }
    const Place& place() const noexcept { return m_place; }

    std::uint8_t u8(std::size_t at) const { return read<std::uint8_t>(at); }
    std::uint16_t u16(std::size_t at) const { return read<std::uint16_t>(at); }
    std::uint32_t u24(std::size_t at) const { return u16(at) | std::uint32_t{u8(at + 2)} << 16U; }
    std::uint32_t u32(std::size_t at) const { return read<std::uint32_t>(at); }
    std::uint64_t u64(std::size_t at) const { return read<std::uint64_t>(at); }
    std::uint32_t u24BigEndian(std::size_t at) const {
        return std::uint32_t{u8(at)} << 16U | std::uint32_t{u8(at + 1)} << 8U | u8(at + 2);
    }
    std::uint32_t u32BigEndian(std::size_t at) const {
        return std::uint32_t{u8(at)} << 24U | u24BigEndian(at + 1);
    }

    std::span<const std::byte> slice(std::size_t at, std::size_t length) const {
        check(at, length);
        return m_bytes.subspan(at, length);
    }
    ByteView view(std::size_t at, std::size_t length) const { return {slice(at, length), m_place}; }

    // Throws an error that names this view's place.
    [[noreturn]] void fail(std::string_view problem) const { m_place.fail(problem); }

private:
    static_assert(std::endian::native == std::endian::little, "values are copied as they lie in the file");

    template <typename Value>
    Value read(std::size_t at) const {
        check(at, sizeof(Value));
        Value value;
        std::memcpy(&value, m_bytes.data() + at, sizeof(Value));
        return value;
    }
    void check(std::size_t at, std::size_t length) const {
        if (at > m_bytes.size() || length > m_bytes.size() - at) [[unlikely]]
            failBeyond(at, length);
    }
    [[noreturn]] void failBeyond(std::size_t at, std::size_t length) const;

    std::span<const std::byte> m_bytes;
    Place m_place;
};

} // namespace jet
