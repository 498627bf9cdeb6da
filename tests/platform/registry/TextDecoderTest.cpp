// SPDX-FileCopyrightText: 2026 The qmClient authors
// SPDX-License-Identifier: GPL-3.0-or-later
#include "platform/registry/TextDecoder.h"

#include "platform/basic/Utf8.h"
#include "platform/registry/StoreError.h"

#include <gtest/gtest.h>

namespace registry {
namespace {

std::string inUtf16(std::string_view text, bool isLittle) {
    std::string bytes = isLittle ? "\xFF\xFE" : "\xFE\xFF";
    for (const char16_t unit : basic::utf8ToUtf16(text)) {
        const char low = static_cast<char>(unit & 0xFFU);
        const char high = static_cast<char>(unit >> 8U);
        bytes.push_back(isLittle ? low : high);
        bytes.push_back(isLittle ? high : low);
    }
    return bytes;
}

std::string failureOf(std::string_view bytes) {
    try {
        decodeText(bytes, "f.reg");
    } catch (const StoreError& error) {
        return error.description();
    }
    return "no failure";
}

const std::string kText = "B\xC3\xBCro \xE2\x82\xAC \xF0\x9F\x98\x80\r\nline 2";

TEST(TextDecoder, ReadsUtf8WithAndWithoutItsMark) {
    EXPECT_EQ(decodeText(kText, "f"), kText);
    EXPECT_EQ(decodeText("\xEF\xBB\xBF" + kText, "f"), kText);
}

TEST(TextDecoder, ReadsUtf16OfBothByteOrders) {
    EXPECT_EQ(decodeText(inUtf16(kText, true), "f"), kText);
    EXPECT_EQ(decodeText(inUtf16(kText, false), "f"), kText);
}

TEST(TextDecoder, KeepsNuls) {
    const std::string text("a\0b", 3);
    EXPECT_EQ(decodeText(text, "f"), text);
    EXPECT_EQ(decodeText(inUtf16(text, true), "f"), text);
}

TEST(TextDecoder, NamesTheLineOfBytesThatAreNoText) {
    EXPECT_NE(failureOf("one\ntwo\nB\xFCro\n").find("f.reg: line 3: not valid UTF-8"), std::string::npos);
    EXPECT_NE(failureOf(std::string("\xFF\xFE\x61\x00\x00\xD8", 6)).find("not valid UTF-16"),
              std::string::npos);
    EXPECT_NE(failureOf(inUtf16(kText, true) + "x").find("line 2: not valid UTF-16"), std::string::npos);
}

} // namespace
} // namespace registry
