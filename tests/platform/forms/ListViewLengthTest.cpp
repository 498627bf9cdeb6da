// SPDX-FileCopyrightText: 2026 The qmClient authors
// SPDX-License-Identifier: GPL-3.0-or-later
#include "tests/platform/forms/CallListFixture.h"

namespace forms {
namespace {

constexpr int kRows = 100000;

class LongListView : public CallListFixture {
protected:
    LongListView() { fill(kRows); }
};

TEST_F(LongListView, HoldsEveryRowInOrder) {
    ASSERT_EQ(list.ListItems().Count(), kRows);
    EXPECT_EQ(view().model()->rowCount(), kRows);
    for (const int row : {1, 2, 1000, 65536, 65537, kRows}) {
        EXPECT_EQ(list.ListItems().Item(row).SubItems(2), std::to_string(row));
        EXPECT_EQ(list.ListItems().Item("K" + std::to_string(row)).Index(), row);
    }
}

TEST_F(LongListView, ScrollsToItsEnd) {
    click(1);
    QTest::keyClick(&view(), Qt::Key_End);
    EXPECT_EQ(selectedKey(), "K100000");
    EXPECT_TRUE(view().viewport()->rect().contains(cell(kRows)));
}

TEST_F(LongListView, SelectsEveryItemOneByOne) {
    for (int i = 1; i <= kRows; ++i)
        list.ListItems().Item(i).SetSelected(true);
    list.Refresh();
    EXPECT_EQ(view().selectionModel()->selection().size(), 1);
    EXPECT_EQ(view().selectionModel()->selectedRows().size(), kRows);
    EXPECT_EQ(keysSelected().size(), static_cast<std::size_t>(kRows));
}

TEST_F(LongListView, SelectsEverySecondItem) {
    for (int i = 2; i <= 2000; i += 2)
        list.ListItems().Item(i).SetSelected(true);
    list.Refresh();
    EXPECT_EQ(keysSelected().size(), 1000U);
    EXPECT_TRUE(view().selectionModel()->isRowSelected(1));
    EXPECT_FALSE(view().selectionModel()->isRowSelected(2));
}

TEST_F(LongListView, IsRefilledWithoutLeftovers) {
    list.ListItems().Clear();
    EXPECT_EQ(view().model()->rowCount(), 0);
    fill(2);
    EXPECT_EQ(view().model()->rowCount(), 2);
    EXPECT_EQ(list.ListItems().Item("K2").SubItems(2), "2");
}

} // namespace
} // namespace forms
