// SPDX-FileCopyrightText: 2026 The qmClient authors
// SPDX-License-Identifier: GPL-3.0-or-later
#include "platform/registry/TextDecoder.h"

#include "platform/basic/Utf8.h"
#include "platform/registry/ResultCodes.h"
#include "platform/registry/StoreError.h"

#include <algorithm>

namespace registry {
namespace {

constexpr std::string_view kUtf8Mark = "\xEF\xBB\xBF";
constexpr std::string_view kUtf16LittleMark = "\xFF\xFE";
constexpr std::string_view kUtf16BigMark = "\xFE\xFF";

template <typename Text>
[[noreturn]] void failAfter(const Text& valid, std::string_view source, std::string_view encoding) {
    const auto line = std::count(valid.begin(), valid.end(), typename Text::value_type{'\n'}) + 1;
    throw StoreError(kCorrupt, std::string(source) + ": line " + std::to_string(line) + ": not valid " +
                                   std::string(encoding));
}

std::string decodeUtf16(std::string_view bytes, std::size_t lowByte, std::string_view source) {
    std::u16string units;
    units.reserve(bytes.size() / 2);
    for (std::size_t i = 0; i + 1 < bytes.size(); i += 2) {
        const auto low = static_cast<unsigned char>(bytes[i + lowByte]);
        const auto high = static_cast<unsigned char>(bytes[i + 1 - lowByte]);
        units.push_back(static_cast<char16_t>(low | (high << 8U)));
    }
    if (bytes.size() % 2 != 0 || !basic::isValidUtf16(units))
        failAfter(units, source, "UTF-16");
    return basic::utf16ToUtf8(units);
}

std::string decodeUtf8(std::string_view bytes, std::string_view source) {
    for (std::size_t at = 0; at < bytes.size();) {
        const basic::Utf8Character next = basic::utf8At(bytes, at);
        if (!next.isValid)
            failAfter(bytes.substr(0, at), source, "UTF-8");
        at += next.length;
    }
    return std::string(bytes);
}

} // namespace

std::string decodeText(std::string_view bytes, std::string_view source) {
    if (bytes.substr(0, 2) == kUtf16LittleMark)
        return decodeUtf16(bytes.substr(2), 0, source);
    if (bytes.substr(0, 2) == kUtf16BigMark)
        return decodeUtf16(bytes.substr(2), 1, source);
    if (bytes.substr(0, 3) == kUtf8Mark)
        return decodeUtf8(bytes.substr(3), source);
    return decodeUtf8(bytes, source);
}

} // namespace registry
