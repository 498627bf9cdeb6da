// SPDX-FileCopyrightText: 2026 The qmClient authors
// SPDX-License-Identifier: GPL-3.0-or-later
#include "platform/registry/Value.h"

#include "platform/basic/Utf8.h"

namespace registry {

Bytes textData(std::string_view text) {
    std::u16string units = basic::utf8ToUtf16(text);
    units.push_back(u'\0');
    Bytes data;
    data.reserve(units.size() * 2);
    for (const char16_t unit : units) {
        data.push_back(static_cast<std::uint8_t>(unit & 0xFFU));
        data.push_back(static_cast<std::uint8_t>(unit >> 8U));
    }
    return data;
}

std::string textOf(const Bytes& data) {
    std::u16string units;
    units.reserve(data.size() / 2);
    for (std::size_t i = 0; i + 1 < data.size(); i += 2)
        units.push_back(static_cast<char16_t>(data[i] | (data[i + 1] << 8U)));
    return basic::utf16ToUtf8(units);
}

Bytes dwordData(std::uint32_t number) {
    return {static_cast<std::uint8_t>(number), static_cast<std::uint8_t>(number >> 8U),
            static_cast<std::uint8_t>(number >> 16U), static_cast<std::uint8_t>(number >> 24U)};
}

std::optional<std::uint32_t> dwordOf(const Bytes& data) noexcept {
    if (data.size() != 4)
        return std::nullopt;
    return data[0] | std::uint32_t{data[1]} << 8U | std::uint32_t{data[2]} << 16U |
           std::uint32_t{data[3]} << 24U;
}

} // namespace registry
