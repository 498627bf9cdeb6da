// SPDX-FileCopyrightText: 2026 The qmClient authors
// SPDX-License-Identifier: GPL-3.0-or-later
#include "platform/registry/RegistryTextWriter.h"

#include "platform/registry/KeyPath.h"
#include "platform/registry/Limits.h"
#include "platform/registry/RegistryTextReader.h"

#include <gtest/gtest.h>

namespace registry {
namespace {

const std::string kHeader = "Windows Registry Editor Version 5.00\n";

std::string rewritten(const std::string& lines) {
    return RegistryTextWriter().write(readRegistryText(kHeader + lines, "x"));
}

TEST(RegistryTextWriter, WritesWhatItReadInTheSameOrder) {
    const std::string lines =
        "\n[HKEY_CURRENT_USER\\b]\n\"Z\"=\"a\\\\b\\\"c\"\n@=\"\"\n\"A\"=dword:0000001f\n"
        "\n[HKEY_CURRENT_USER\\b\\inner]\n\"Bin\"=hex:00,ff\n\"Exp\"=hex(2):25,00,00,00\n"
        "\n[HKEY_CURRENT_USER\\a]\n"
        "\n[HKEY_USERS\\.DEFAULT\\x]\n\"none\"=hex(0):\n";
    EXPECT_EQ(rewritten(lines), kHeader + lines);
}

TEST(RegistryTextWriter, WritesNumbersAndTextOfOddShapeAsBytes) {
    const std::string lines =
        "\n[K]\n\"short\"=hex(4):01\n\"unended\"=hex(1):61,00\n\"odd\"=hex(1):61,00,00\n"
        "\"none\"=hex(1):\n\"inner\"=hex(1):61,00,00,00,62,00,00,00\n"
        "\"lines\"=hex(1):61,00,0d,00,0a,00,62,00,00,00\n\"lone\"=hex(1):00,d8,00,00\n";
    EXPECT_EQ(rewritten(lines), kHeader + lines);
}

TEST(RegistryTextWriter, WritesPlainTextInQuotationMarksHoweverItCame) {
    EXPECT_EQ(rewritten("[K]\n\"a\"=hex(1):fc,00,00,00\n\"b\"=hex(4):02,00,00,00\n"),
              kHeader + "\n[K]\n\"a\"=\"\xC3\xBC\"\n\"b\"=dword:00000002\n");
}

TEST(RegistryTextWriter, BreaksLongBytesIntoContinuedLines) {
    Key root;
    Bytes data;
    for (int i = 0; i < 200; ++i)
        data.push_back(static_cast<std::uint8_t>(i));
    root.obtain("K").setValue({"long", kRegBinary, data});
    const std::string text = RegistryTextWriter().write(root);
    EXPECT_EQ(readRegistryText(text, "x"), root);
    for (std::size_t begin = 0; begin < text.size();) {
        const std::size_t end = text.find('\n', begin);
        EXPECT_LE(end - begin, 80U);
        begin = end + 1;
    }
}

TEST(RegistryTextWriter, AnEmptyTreeIsTheHeader) {
    EXPECT_EQ(RegistryTextWriter().write(Key()), kHeader);
}

TEST(RegistryTextWriter, ADeepTreeStaysSmall) {
    Key root;
    Key* key = &root;
    for (std::size_t i = 0; i < kMaxDepth; ++i)
        key = &key->obtain(std::string(kMaxKeyName, 'k'));
    const std::string text = RegistryTextWriter().write(root);
    EXPECT_LT(text.size(), kMaxDepth * (kMaxKeyName + 1) + 100);
    EXPECT_EQ(readRegistryText(text, "x"), root);
}

TEST(RegistryTextWriter, NamesKeepTheirSpellingAndSigns) {
    Key root;
    root.obtain("K").obtain("a] ;b").setValue({"q\"\\\n=", kRegSz, textData("x")});
    root.obtain("K").obtain("\xC3\x84 b ");
    EXPECT_EQ(readRegistryText(RegistryTextWriter().write(root), "x"), root);
}

} // namespace
} // namespace registry
