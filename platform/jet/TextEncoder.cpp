// SPDX-FileCopyrightText: 2026 The qmClient authors
// SPDX-License-Identifier: GPL-3.0-or-later
#include "platform/jet/TextEncoder.h"

#include "platform/basic/RuntimeError.h"
#include "platform/basic/Utf8.h"
#include "platform/jet/Format.h"

#include <algorithm>

namespace jet {
namespace {

constexpr char16_t kByteOrderMark = 0xFEFF;

bool isCompressible(std::u16string_view text) {
    return text.size() >= format::text::kMinCompressedUnits &&
           text.size() <= format::text::kMaxCompressedUnits &&
           std::ranges::all_of(text, [](char16_t unit) { return unit >= 0x01 && unit <= 0xFF; });
}

} // namespace

std::u16string toStoredUnits(std::string_view utf8) {
    if (!basic::isValidUtf8(utf8))
        throw basic::RuntimeError(basic::kInvalidProcedureCall, "The text to be stored is not valid UTF-8");
    return basic::utf8ToUtf16(utf8);
}

Bytes encodeUtf16(std::u16string_view text) {
    const auto bytes = std::as_bytes(std::span(text));
    return {bytes.begin(), bytes.end()};
}

Bytes encodeText(std::u16string_view text, bool mayCompress) {
    if (text.starts_with(kByteOrderMark))
        throw basic::RuntimeError(basic::kInvalidProcedureCall,
                                  "A text that begins with a byte order mark cannot be stored");
    if (!mayCompress || !isCompressible(text))
        return encodeUtf16(text);
    Bytes bytes{std::byte{format::text::kMarker0}, std::byte{format::text::kMarker1}};
    for (const char16_t unit : text)
        bytes.push_back(static_cast<std::byte>(unit));
    return bytes;
}

} // namespace jet
