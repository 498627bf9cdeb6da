// SPDX-FileCopyrightText: 2026 The qmClient authors
// SPDX-License-Identifier: GPL-3.0-or-later
#include "platform/forms/ListView.h"
#include "tests/platform/basic/ErrorOf.h"

#include <QCoreApplication>
#include <QTreeView>

#include <gtest/gtest.h>

namespace forms {
namespace {

class ListCollections : public testing::Test {
protected:
    ListCollections() {
        list.ColumnHeaders().Add("Icon", {70});
        list.ColumnHeaders().Add("Date", {1700}, kColumnRight, "Date");
    }
    ListView list;
};

TEST_F(ListCollections, CountFromOne) {
    list.ListItems().Add("K7", "seven");
    EXPECT_EQ(list.ColumnHeaders().Item(2).Text, "Date");
    EXPECT_EQ(list.ColumnHeaders().Item(2).Width.value, 1700);
    EXPECT_EQ(list.ColumnHeaders().Item(2).Alignment, kColumnRight);
    EXPECT_EQ(list.ListItems().Item(1).Key(), "K7");
    EXPECT_EQ(list.ListItems().Item("K7").Index(), 1);
}

TEST_F(ListCollections, UnknownIndexOrKeyIsElementNotFound) {
    list.ListItems().Add("K1", "");
    EXPECT_EQ(basic::errorOf([&] { list.ListItems().Item(0); }), basic::kElementNotFound);
    EXPECT_EQ(basic::errorOf([&] { list.ListItems().Item(2); }), basic::kElementNotFound);
    EXPECT_EQ(basic::errorOf([&] { list.ListItems().Item("K2"); }), basic::kElementNotFound);
    EXPECT_EQ(basic::errorOf([&] { list.ColumnHeaders().Item(0); }), basic::kElementNotFound);
    EXPECT_EQ(basic::errorOf([&] { list.ColumnHeaders().Item(3); }), basic::kElementNotFound);
}

TEST_F(ListCollections, DuplicateKeyIsNotUnique) {
    list.ListItems().Add("K", "");
    EXPECT_EQ(basic::errorOf([&] { list.ListItems().Add("K", ""); }), basic::kKeyNotUnique);
    EXPECT_EQ(basic::errorOf([&] { list.ColumnHeaders().Add("Again", {10}, 0, "Date"); }),
              basic::kKeyNotUnique);
    EXPECT_EQ(list.ListItems().Count(), 1);
    EXPECT_EQ(list.ColumnHeaders().Count(), 2);
}

TEST_F(ListCollections, SubItemsOutsideTheColumnsAreRefused) {
    ListItem item = list.ListItems().Add("K", "");
    EXPECT_EQ(basic::errorOf([&] { item.SetSubItems(0, "x"); }), basic::kInvalidPropertyValue);
    EXPECT_EQ(basic::errorOf([&] { item.SetSubItems(2, "x"); }), basic::kInvalidPropertyValue);
    EXPECT_EQ(basic::errorOf([&] { item.SetSubItems(1, "x"); }), 0);
    EXPECT_EQ(item.SubItems(1), "x");
}

TEST_F(ListCollections, AnUnknownAlignmentIsRefused) {
    EXPECT_EQ(basic::errorOf([&] { list.ColumnHeaders().Add("x", {10}, 3); }), basic::kInvalidPropertyValue);
    EXPECT_EQ(list.ColumnHeaders().Count(), 2);
}

TEST_F(ListCollections, AnItemOfAClearedListIsNoItem) {
    ListItem item = list.ListItems().Add("K", "");
    list.ListItems().Clear();
    list.ListItems().Add("K", "");
    EXPECT_EQ(basic::errorOf([&] { static_cast<void>(item.Key()); }), basic::kElementNotFound);
    EXPECT_EQ(basic::errorOf([&] { item.SetSelected(true); }), basic::kElementNotFound);
    EXPECT_EQ(basic::errorOf([&] { list.SetSelectedItem(item); }), basic::kElementNotFound);
    EXPECT_EQ(basic::errorOf([&] { list.EnsureVisible(item); }), basic::kElementNotFound);
}

TEST_F(ListCollections, ItemsKeepWhatTheyAreGiven) {
    ListItem item = list.ListItems().Add("K", "text");
    item.SetSmallIcon(8);
    item.SetGhosted(true);
    item.SetChecked(true);
    item.SetSelected(true);
    item.SetText("other");
    const ListItem again = list.ListItems().Item(1);
    EXPECT_EQ(again.SmallIcon(), 8);
    EXPECT_TRUE(again.Ghosted());
    EXPECT_TRUE(again.Checked());
    EXPECT_TRUE(again.Selected());
    EXPECT_EQ(again.Text(), "other");
}

TEST_F(ListCollections, WhatIsAddedIsShownWhenTheEventLoopTurns) {
    const QAbstractItemModel& shown = *list.findChild<QTreeView*>()->model();
    int insertions = 0;
    QObject::connect(&shown, &QAbstractItemModel::rowsInserted, [&] { ++insertions; });
    for (int i = 0; i < 1000; ++i)
        list.ListItems().Add("K" + std::to_string(i), "");
    EXPECT_EQ(list.ListItems().Count(), 1000);
    QCoreApplication::processEvents();
    EXPECT_EQ(shown.rowCount(), 1000);
    EXPECT_EQ(insertions, 1);
}

TEST_F(ListCollections, AChangeOfAShownItemIsShown) {
    ListItem item = list.ListItems().Add("K", "");
    item.SetSubItems(1, "old");
    QCoreApplication::processEvents();
    item.SetSubItems(1, "new");
    const QAbstractItemModel& shown = *list.findChild<QTreeView*>()->model();
    int changes = 0;
    QObject::connect(&shown, &QAbstractItemModel::dataChanged, [&] { ++changes; });
    QCoreApplication::processEvents();
    EXPECT_EQ(changes, 1);
    EXPECT_EQ(shown.index(0, 1).data().toString(), QStringLiteral("new"));
}

} // namespace
} // namespace forms
