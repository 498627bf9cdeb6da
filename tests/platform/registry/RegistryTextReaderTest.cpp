// SPDX-FileCopyrightText: 2026 The qmClient authors
// SPDX-License-Identifier: GPL-3.0-or-later
#include "platform/registry/RegistryTextReader.h"

#include "platform/registry/KeyPath.h"
#include "platform/registry/Limits.h"
#include "platform/registry/ResultCodes.h"
#include "platform/registry/StoreError.h"

#include <gtest/gtest.h>

namespace registry {
namespace {

const std::string kHeader = "Windows Registry Editor Version 5.00\n";

Key read(const std::string& lines) {
    return readRegistryText(kHeader + lines, "test.reg");
}

std::string failureOf(const std::string& bytes) {
    try {
        readRegistryText(bytes, "test.reg");
    } catch (const StoreError& error) {
        EXPECT_EQ(error.number(), basic::kPathFileAccess);
        EXPECT_EQ(error.code(), kCorrupt);
        return error.description();
    }
    return "no failure";
}

const Value& valueAt(const Key& root, const std::string& path, const std::string& name) {
    static const Value missing{"missing", 99, {}};
    const Key* const key = findPath(root, splitPath(path));
    const Value* const value = key == nullptr ? nullptr : key->findValue(name);
    EXPECT_NE(value, nullptr) << path << " " << name;
    return value == nullptr ? missing : *value;
}

std::string namesOf(const Key& key) {
    std::string names;
    for (const Key& sub : key.keys())
        names += sub.name() + ";";
    return names;
}

TEST(RegistryTextReader, ReadsTextNumbersAndBytes) {
    const Key root =
        read("[HKCU\\Soft]\n\"Text\"=\"a\\\\b\\\"c\"\n\"Number\"=dword:0000001F\n\"Bin\"=hex:00,fF,1\n"
             "@=\"default\"\n");
    EXPECT_EQ(textOf(valueAt(root, "HKCU\\Soft", "Text").data), std::string("a\\b\"c\0", 6));
    EXPECT_EQ(dwordOf(valueAt(root, "HKCU\\Soft", "Number").data), 31U);
    EXPECT_EQ(valueAt(root, "HKCU\\Soft", "Bin"), (Value{"Bin", kRegBinary, {0, 255, 1}}));
    EXPECT_EQ(textOf(valueAt(root, "HKCU\\Soft", "").data), std::string("default\0", 8));
}

TEST(RegistryTextReader, KeepsOtherTypesByteForByte) {
    const Key root =
        read("[K]\n\"a\"=hex(2):25,00,00,00\n\"b\"=hex(0):\n\"c\"=hex(1):61,00\n\"d\"=hex(4):01\n"
             "\"e\"=hex(FFFFFFFF):07\n");
    EXPECT_EQ(valueAt(root, "K", "a"), (Value{"a", kRegExpandSz, {0x25, 0, 0, 0}}));
    EXPECT_EQ(valueAt(root, "K", "b"), (Value{"b", 0, {}}));
    EXPECT_EQ(valueAt(root, "K", "c"), (Value{"c", kRegSz, {0x61, 0}}));
    EXPECT_EQ(valueAt(root, "K", "d"), (Value{"d", kRegDword, {1}}));
    EXPECT_EQ(valueAt(root, "K", "e"), (Value{"e", 0xFFFFFFFF, {7}}));
}

TEST(RegistryTextReader, FollowsBytesOverContinuedLines) {
    const Key root = read("[K]\n\"a\"=hex:01,02,\\\r\n  03,\\\n\t04\n\"b\"=hex:\\\n  05\n\"c\"=dword:1\n");
    EXPECT_EQ(valueAt(root, "K", "a").data, (Bytes{1, 2, 3, 4}));
    EXPECT_EQ(valueAt(root, "K", "b").data, Bytes{5});
    EXPECT_EQ(dwordOf(valueAt(root, "K", "c").data), 1U);
}

TEST(RegistryTextReader, PassesOverCommentsBlanksAndEmptyLines) {
    const Key root =
        read("\r\n; comment [x]\n  \t\n [K] ; said of it\n  \"a\" = \"1\" ; one\n\"b\"=dword:2;two\n"
             "\"c\"=hex:03 ; three\n");
    EXPECT_EQ(valueAt(root, "K", "a").data, textData("1"));
    EXPECT_EQ(dwordOf(valueAt(root, "K", "b").data), 2U);
    EXPECT_EQ(valueAt(root, "K", "c").data, Bytes{3});
}

TEST(RegistryTextReader, ReadsCrLfAndAMissingLastLineEnd) {
    const Key root = readRegistryText("Windows Registry Editor Version 5.00\r\n\r\n[K]\r\n\"a\"=\"1\"", "x");
    EXPECT_EQ(valueAt(root, "K", "a").data, textData("1"));
}

TEST(RegistryTextReader, LaterLinesWinAndKeepTheFirstSpelling) {
    const Key root = read("[K\\Name]\n\"Val\"=\"1\"\n[k\\NAME]\n\"VAL\"=\"2\"\n");
    EXPECT_EQ(namesOf(root), "K;");
    EXPECT_EQ(valueAt(root, "k\\name", "val"), (Value{"Val", kRegSz, textData("2")}));
}

TEST(RegistryTextReader, TakesAwayKeysAndValues) {
    const Key root =
        read("[K\\a\\b]\n\"x\"=\"1\"\n[K\\c]\n\"x\"=\"1\"\n\"y\"=\"2\"\n\"X\"=-\n\"none\"=-\n[-k\\A]\n"
             "[-K\\none\\none]\n");
    EXPECT_EQ(namesOf(*root.find("K")), "c;");
    EXPECT_EQ(root.find("K")->find("c")->findValue("x"), nullptr);
    EXPECT_NE(root.find("K")->find("c")->findValue("y"), nullptr);
}

TEST(RegistryTextReader, KeyNamesMayHoldBracketsAndBlanks) {
    const Key root = read("[K\\a]b\\ c ]\n\"x\"=\"1\"\n");
    EXPECT_NE(findPath(root, {"K", "a]b", " c "}), nullptr);
}

TEST(RegistryTextReader, TextMayGoOnOverLinesAndHoldNuls) {
    using namespace std::string_literals;
    const Key root = read("[K]\n\"a\"=\"one\r\ntwo\"\n\"b\0c\"=\"d\0e\"\n\"z\"=\"q\\n\"\n"s);
    EXPECT_EQ(valueAt(root, "K", "a").data, textData("one\r\ntwo"));
    EXPECT_EQ(valueAt(root, "K", std::string("b\0c", 3)).data, textData(std::string_view("d\0e", 3)));
    EXPECT_EQ(valueAt(root, "K", "z").data, textData("q\\n"));
}

TEST(RegistryTextReader, NothingIsAnEmptyTree) {
    EXPECT_TRUE(readRegistryText("", "x").keys().empty());
    EXPECT_TRUE(readRegistryText("\xEF\xBB\xBF", "x").keys().empty());
    EXPECT_TRUE(read("").keys().empty());
}

TEST(RegistryTextReader, RefusesTheOldFormatByName) {
    EXPECT_NE(failureOf("REGEDIT4\r\n\r\n[K]\r\n").find("test.reg: line 1: this is the old REGEDIT4 format"),
              std::string::npos);
}

TEST(RegistryTextReader, NamesTheLineOfEveryDamage) {
    const auto line = [](const std::string& lines) {
        const std::string failure = failureOf(kHeader + lines);
        const std::size_t at = failure.find("line ");
        return at == std::string::npos ? failure : failure.substr(at, failure.find(':', at) - at);
    };
    EXPECT_EQ(line("\"a\"=\"no key\"\n"), "line 2");
    EXPECT_EQ(line("[K]\n\n\"a\"=\n"), "line 4");
    EXPECT_EQ(line("[K]\n\"a\"\n"), "line 3");
    EXPECT_EQ(line("[K]\n\"a\n\n\n"), "line 3");
    EXPECT_EQ(line("[K]\n\"a\"=\"one\ntwo\"\nrubbish\n"), "line 5");
    EXPECT_EQ(line("[K]\n\"a\"=\"b\" c\n"), "line 3");
    EXPECT_EQ(line("[K]\n\"a\"=dword:\n"), "line 3");
    EXPECT_EQ(line("[K]\n\"a\"=dword:123456789\n"), "line 3");
    EXPECT_EQ(line("[K]\n\"a\"=hex:01,\n"), "line 3");
    EXPECT_EQ(line("[K]\n\"a\"=hex:01,\\"), "line 3");
    EXPECT_EQ(line("[K]\n\"a\"=hex:01,\\\n"), "line 4");
    EXPECT_EQ(line("[K]\n\"a\"=hex:0g\n"), "line 3");
    EXPECT_EQ(line("[K]\n\"a\"=hex:012\n"), "line 3");
    EXPECT_EQ(line("[K]\n\"a\"=hex(1:01\n"), "line 3");
    EXPECT_EQ(line("[K]\n\"a\"=hex(x):01\n"), "line 3");
    EXPECT_EQ(line("[K\n"), "line 2");
    EXPECT_EQ(line("[K] x\n"), "line 2");
    EXPECT_EQ(line("[]\n"), "line 2");
    EXPECT_EQ(line("[K\\\\a]\n"), "line 2");
    EXPECT_EQ(line("[K\\]\n"), "line 2");
    EXPECT_EQ(line("[-K]\n\"a\"=\"b\"\n"), "line 3");
    EXPECT_EQ(line("\n\nrubbish\n"), "line 4");
    EXPECT_NE(failureOf("Windows Registry Editor Version 4.00\n").find("line 1"), std::string::npos);
    EXPECT_NE(failureOf("[K]\n").find("line 1"), std::string::npos);
}

TEST(RegistryTextReader, BoundsDepthNamesAndCounts) {
    std::string path = "k";
    for (std::size_t i = 1; i < kMaxDepth; ++i)
        path += "\\k";
    EXPECT_NO_THROW(read("[" + path + "]\n"));
    EXPECT_NE(failureOf(kHeader + "[" + path + "\\k]\n").find("line 2"), std::string::npos);
    EXPECT_NO_THROW(read("[" + std::string(kMaxKeyName, 'k') + "]\n"));
    EXPECT_NE(failureOf(kHeader + "[" + std::string(kMaxKeyName + 1, 'k') + "]\n").find("line 2"),
              std::string::npos);
    EXPECT_NO_THROW(read("[k]\n\"" + std::string(kMaxValueName, 'v') + "\"=\"\"\n"));
    EXPECT_NE(
        failureOf(kHeader + "[k]\n\"" + std::string(kMaxValueName + 1, 'v') + "\"=\"\"\n").find("too long"),
        std::string::npos);
    EXPECT_NE(failureOf(std::string(kMaxFileSize + 1, ' ')).find("too big"), std::string::npos);
}

TEST(RegistryTextReader, BoundsTheNumberOfKeys) {
    std::string lines = kHeader;
    for (std::size_t i = 0; i <= kMaxKeys; ++i)
        lines += "[" + std::to_string(i) + "]\n";
    EXPECT_NE(failureOf(lines).find("too many keys"), std::string::npos);
}

TEST(RegistryTextReader, BoundsTheNumberOfValues) {
    std::string lines = kHeader + "[k]\n";
    for (std::size_t i = 0; i <= kMaxValues; ++i)
        lines += "@=\"\"\n";
    EXPECT_NE(failureOf(lines).find("too many values"), std::string::npos);
}

} // namespace
} // namespace registry
