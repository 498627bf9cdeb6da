// SPDX-FileCopyrightText: 2026 The qmClient authors
// SPDX-License-Identifier: GPL-3.0-or-later
#include "platform/basic/Collection.h"

#include "tests/platform/basic/ErrorOf.h"

#include <gtest/gtest.h>

namespace basic {
namespace {

using Texts = Collection<std::string>;

Texts sample() {
    Texts texts;
    texts.Add("three", "KEY3");
    texts.Add("twelve", "KEY12");
    texts.Add("keyless");
    return texts;
}

TEST(Collection, KeepsTheOrderOfAdding) {
    const Texts texts = sample();
    std::string all;
    for (const std::string& text : texts)
        all += text + ";";
    EXPECT_EQ(all, "three;twelve;keyless;");
    EXPECT_EQ(texts.Count(), 3);
    EXPECT_EQ(texts.keyAt(2), "KEY12");
}

TEST(Collection, FindsByPositionFromOneAndByKeyWithoutCase) {
    const Texts texts = sample();
    EXPECT_EQ(texts.at(1), "three");
    EXPECT_EQ(texts.at(3), "keyless");
    EXPECT_EQ(texts.at("key12"), "twelve");
    EXPECT_TRUE(texts.contains("Key3"));
    EXPECT_FALSE(texts.contains("KEY"));
}

TEST(Collection, ADuplicateKeyIsError457AndAddsNothing) {
    Texts texts = sample();
    EXPECT_EQ(errorOf([&] { texts.Add("again", "key3"); }), kKeyInUse);
    EXPECT_EQ(texts.Count(), 3);
}

TEST(Collection, ItemsWithoutKeyDoNotClash) {
    Texts texts = sample();
    texts.Add("keyless too");
    EXPECT_EQ(texts.Count(), 4);
}

TEST(Collection, AMissingPositionIsError9AndAMissingKeyError5) {
    Texts texts = sample();
    EXPECT_EQ(errorOf([&] { texts.at(0); }), kSubscriptOutOfRange);
    EXPECT_EQ(errorOf([&] { texts.at(4); }), kSubscriptOutOfRange);
    EXPECT_EQ(errorOf([&] { texts.at("KEY7"); }), kInvalidProcedureCall);
    EXPECT_EQ(errorOf([&] { texts.at(""); }), kInvalidProcedureCall);
    EXPECT_EQ(errorOf([&] { texts.Remove(4); }), kSubscriptOutOfRange);
    EXPECT_EQ(errorOf([&] { texts.Remove("KEY7"); }), kInvalidProcedureCall);
}

TEST(Collection, RemovesByPositionAndByKey) {
    Texts texts = sample();
    texts.Remove("KEY3");
    texts.Remove(2);
    ASSERT_EQ(texts.Count(), 1);
    EXPECT_EQ(texts.at(1), "twelve");
    texts.Add("three again", "KEY3");
    EXPECT_EQ(texts.at(2), "three again");
}

} // namespace
} // namespace basic
