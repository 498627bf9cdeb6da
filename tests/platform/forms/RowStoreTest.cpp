// SPDX-FileCopyrightText: 2026 The qmClient authors
// SPDX-License-Identifier: GPL-3.0-or-later
#include "platform/forms/RowStore.h"

#include "tests/platform/basic/ErrorOf.h"

#include <gtest/gtest.h>

#include <string>

namespace forms {
namespace {

TEST(RowStore, FindsRowsByKey) {
    RowStore rows;
    rows.add("K1", "one");
    rows.add("K2", "two");
    EXPECT_EQ(rows.find("K2"), 1);
    EXPECT_EQ(rows.find("K3"), std::nullopt);
}

TEST(RowStore, RefusesAKeyThatIsThereAndAddsNothing) {
    RowStore rows;
    rows.add("K1", "one");
    EXPECT_EQ(basic::errorOf([&] { rows.add("K1", "again"); }), basic::kKeyNotUnique);
    EXPECT_EQ(rows.count(), 1);
    EXPECT_EQ(rows.text(0, 0), "one");
}

TEST(RowStore, TakesAnyNumberOfRowsWithoutAKey) {
    RowStore rows;
    rows.add("", "a");
    rows.add("", "b");
    EXPECT_EQ(rows.count(), 2);
    EXPECT_EQ(rows.find(""), std::nullopt);
}

TEST(RowStore, CellsNeverSetAreEmpty) {
    RowStore rows;
    rows.add("K1", "");
    rows.add("K2", "");
    rows.setText(1, 3, "x");
    EXPECT_EQ(rows.text(0, 3), "");
    EXPECT_EQ(rows.text(1, 3), "x");
    EXPECT_EQ(rows.text(1, 9), "");
}

TEST(RowStore, ViewsOfTextsSurviveLaterRowsAndLaterTexts) {
    RowStore rows;
    rows.add("K", "first");
    const std::string_view kept = rows.text(0, 0);
    rows.setText(0, 0, "second");
    for (int i = 0; i < 20000; ++i)
        rows.add(std::to_string(i), std::string(50, 'x'));
    EXPECT_EQ(kept, "first");
    EXPECT_EQ(rows.text(0, 0), "second");
}

TEST(RowStore, ACellMayBeSetFromAnotherOne) {
    RowStore rows;
    rows.add("K1", "text");
    rows.add("K2", "");
    rows.setText(1, 0, rows.text(0, 0));
    EXPECT_EQ(rows.text(1, 0), "text");
}

TEST(RowStore, ClearedRowsAreForgottenWithTheirKeys) {
    RowStore rows;
    rows.add("K1", "one");
    rows.flags(0).selected = true;
    rows.clear();
    EXPECT_EQ(rows.count(), 0);
    EXPECT_EQ(rows.add("K1", "new"), 0);
    EXPECT_FALSE(rows.flags(0).selected);
}

TEST(RowStore, HoldsBytesThatAreNoTextAsTheyAre) {
    RowStore rows;
    const std::string odd("a\0b\xFF", 4);
    rows.add(odd, odd);
    EXPECT_EQ(rows.text(0, 0), odd);
    EXPECT_EQ(rows.find(odd), 0);
}

} // namespace
} // namespace forms
