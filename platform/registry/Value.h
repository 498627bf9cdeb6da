// SPDX-FileCopyrightText: 2026 The qmClient authors
// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once
// A value of a key: name (empty for the default value), type number and data as the platform stores it (text
// is UTF-16LE with its final NUL, a number 4 bytes little-endian).

#include <cstdint>
#include <optional>
#include <string>
#include <string_view>
#include <vector>

namespace registry {

using Bytes = std::vector<std::uint8_t>;

inline constexpr std::uint32_t kRegSz = 1;
inline constexpr std::uint32_t kRegExpandSz = 2;
inline constexpr std::uint32_t kRegBinary = 3;
inline constexpr std::uint32_t kRegDword = 4;
inline constexpr std::uint32_t kRegMultiSz = 7;

struct Value {
    std::string name;
    std::uint32_t type = kRegSz;
    Bytes data;
    bool operator==(const Value&) const = default;
};

// `text` as stored, and a final NUL.
Bytes textData(std::string_view text);
// Stored text whole, NULs included; a last odd byte is left out.
std::string textOf(const Bytes& data);

Bytes dwordData(std::uint32_t number);
// Nothing unless the data has exactly 4 bytes.
std::optional<std::uint32_t> dwordOf(const Bytes& data) noexcept;

} // namespace registry
