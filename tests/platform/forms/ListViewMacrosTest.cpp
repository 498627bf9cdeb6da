// SPDX-FileCopyrightText: 2026 The qmClient authors
// SPDX-License-Identifier: GPL-3.0-or-later
#include "platform/forms/ListViewMacros.h"

#include <gtest/gtest.h>

namespace forms {
namespace {

class ListViewMacrosTest : public testing::Test {
protected:
    ListViewMacrosTest() {
        list.ColumnHeaders().Add("", {900});
        for (const char* key : {"KA", "KB"})
            list.ListItems().Add(key, key);
    }
    std::uint32_t style() {
        return static_cast<std::uint32_t>(list.sendMessage(LVM_GETEXTENDEDLISTVIEWSTYLE, 0, 0));
    }

    ListView list;
};

TEST_F(ListViewMacrosTest, OnlyTheMasksBitsOfTheStyleChangeAndTheFormerStyleIsAnswered) {
    EXPECT_EQ(ListView_SetExtendedListViewStyleEx(list, LVS_EX_CHECKBOXES, LVS_EX_CHECKBOXES), 0U);
    EXPECT_EQ(ListView_SetExtendedListViewStyleEx(list, LVS_EX_FULLROWSELECT, 0xFFFFFFFF), LVS_EX_CHECKBOXES);
    EXPECT_EQ(style(), LVS_EX_CHECKBOXES | LVS_EX_FULLROWSELECT);
    ListView_SetExtendedListViewStyleEx(list, LVS_EX_CHECKBOXES, 0);
    EXPECT_EQ(style(), LVS_EX_FULLROWSELECT);
}

TEST_F(ListViewMacrosTest, FullRowsAreSelectedWithoutAnyOtherStyle) {
    selectFullRows(list);
    EXPECT_EQ(style(), LVS_EX_FULLROWSELECT);
}

TEST_F(ListViewMacrosTest, CheckIsSetAndReadForOneItem) {
    ListView_SetExtendedListViewStyleEx(list, LVS_EX_CHECKBOXES, LVS_EX_CHECKBOXES);
    ListView_SetCheckState(list, 1, true);
    EXPECT_FALSE(ListView_GetCheckState(list, 0));
    EXPECT_TRUE(ListView_GetCheckState(list, 1));
    EXPECT_TRUE(list.ListItems().Item(2).Checked());
    ListView_SetCheckState(list, 1, false);
    EXPECT_FALSE(ListView_GetCheckState(list, 1));
}

TEST_F(ListViewMacrosTest, ItemWithoutACheckBoxCountsAsChecked) {
    EXPECT_TRUE(ListView_GetCheckState(list, 0));
}

} // namespace
} // namespace forms
