// SPDX-FileCopyrightText: 2026 The qmClient authors
// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once
// Little-endian access to bytes that are about to be written: the counterpart of ByteView. Every access is
// checked; one beyond the end is RuntimeError kInternalError, because what is written is laid out by us.
// Refers to the bytes, owns nothing.

#include "platform/basic/RuntimeError.h"

#include <algorithm>
#include <cstddef>
#include <cstdint>
#include <cstring>
#include <span>

namespace jet {

class ByteEditor {
public:
    explicit ByteEditor(std::span<std::byte> bytes) : m_bytes(bytes) {}

    void put8(std::size_t at, std::uint8_t value) { put(at, value); }
    void put16(std::size_t at, std::uint16_t value) { put(at, value); }
    void put32(std::size_t at, std::uint32_t value) { put(at, value); }
    void put64(std::size_t at, std::uint64_t value) { put(at, value); }
    void copy(std::size_t at, std::span<const std::byte> from) {
        std::copy(from.begin(), from.end(), range(at, from.size()).begin());
    }
    void fill(std::size_t at, std::size_t length, std::uint8_t value) {
        std::ranges::fill(range(at, length), std::byte{value});
    }

private:
    template <typename Value>
    void put(std::size_t at, Value value) {
        std::memcpy(range(at, sizeof(Value)).data(), &value, sizeof(Value));
    }
    std::span<std::byte> range(std::size_t at, std::size_t length) const {
        if (at > m_bytes.size() || length > m_bytes.size() - at)
            throw basic::RuntimeError(basic::kInternalError, "A write beyond the end of a page");
        return m_bytes.subspan(at, length);
    }

    std::span<std::byte> m_bytes;
};

} // namespace jet
