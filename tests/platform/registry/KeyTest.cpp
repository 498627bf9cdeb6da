// SPDX-FileCopyrightText: 2026 The qmClient authors
// SPDX-License-Identifier: GPL-3.0-or-later
#include "platform/registry/Key.h"

#include "platform/registry/KeyPath.h"

#include <gtest/gtest.h>

namespace registry {
namespace {

TEST(Key, FindsNamesWithoutCaseAndKeepsTheirSpelling) {
    Key root;
    root.obtain("Soft\xC3\x84");
    EXPECT_EQ(&root.obtain("SOFT\xC3\xA4"), root.find("soft\xC3\xA4"));
    EXPECT_EQ(root.keys().size(), 1U);
    EXPECT_EQ(root.keys().front().name(), "Soft\xC3\x84");
}

TEST(Key, KeepsTheOrderOverRemovals) {
    Key root;
    for (const char* name : {"c", "a", "b"})
        root.obtain(name);
    EXPECT_TRUE(root.remove("A"));
    EXPECT_FALSE(root.remove("a"));
    root.obtain("a");
    std::string names;
    for (const Key& key : root.keys())
        names += key.name();
    EXPECT_EQ(names, "cba");
}

TEST(Key, ReplacesAValueWhereItStands) {
    Key key;
    key.setValue({"One", kRegSz, textData("1")});
    key.setValue({"Two", kRegSz, textData("2")});
    key.setValue({"ONE", kRegDword, dwordData(7)});
    ASSERT_EQ(key.values().size(), 2U);
    EXPECT_EQ(key.values().front(), (Value{"One", kRegDword, dwordData(7)}));
    EXPECT_TRUE(key.removeValue("one"));
    EXPECT_FALSE(key.removeValue("one"));
    EXPECT_EQ(key.findValue("One"), nullptr);
}

TEST(Key, ComparesAllTheWayDown) {
    Key left;
    Key right;
    left.obtain("a").obtain("b");
    right.obtain("a").obtain("b");
    EXPECT_EQ(left, right);
    right.obtain("a").obtain("b").setValue({"x", kRegSz, {}});
    EXPECT_FALSE(left == right);
}

TEST(Key, StaysFindableAfterAMove) {
    Key root;
    root.obtain("a").setValue({"x", kRegSz, {}});
    Key moved = std::move(root);
    ASSERT_NE(moved.find("A"), nullptr);
    EXPECT_NE(moved.find("A")->findValue("X"), nullptr);
    EXPECT_TRUE(moved.remove("a"));
    EXPECT_TRUE(moved.keys().empty());
}

TEST(KeyPath, SplitsAtBackslashes) {
    EXPECT_TRUE(splitPath("").empty());
    EXPECT_EQ(splitPath("a\\b"), (std::vector<std::string_view>{"a", "b"}));
    EXPECT_EQ(splitPath("\\a\\"), (std::vector<std::string_view>{"", "a", ""}));
}

TEST(KeyPath, TellsNamesThatCannotBeStored) {
    EXPECT_TRUE(isStorableKeyPath({"a", std::string(255, 'b')}));
    EXPECT_FALSE(isStorableKeyPath({}));
    EXPECT_FALSE(isStorableKeyPath({"a", ""}));
    EXPECT_FALSE(isStorableKeyPath({"a\nb"}));
    EXPECT_FALSE(isStorableKeyPath({"\xFF"}));
    EXPECT_FALSE(isStorableKeyPath({std::string(256, 'b')}));
}

TEST(KeyPath, RemovesOnlyWhatIsThere) {
    Key root;
    obtainPath(root, {"a", "b", "c"});
    EXPECT_FALSE(removePath(root, {"a", "x", "c"}));
    EXPECT_FALSE(removePath(root, {}));
    EXPECT_TRUE(removePath(root, {"a", "b"}));
    EXPECT_EQ(findPath(root, {"a", "b"}), nullptr);
    EXPECT_NE(findPath(root, {"a"}), nullptr);
}

TEST(Value, TextIsStoredAsUtf16WithANul) {
    EXPECT_EQ(textData("\xC3\xBC"), (Bytes{0xFC, 0, 0, 0}));
    EXPECT_EQ(textOf({0xFC, 0, 0x61}), "\xC3\xBC");
    EXPECT_EQ(dwordOf(dwordData(0x80FF0102)), 0x80FF0102U);
    EXPECT_FALSE(dwordOf({1, 2, 3}));
}

} // namespace
} // namespace registry
