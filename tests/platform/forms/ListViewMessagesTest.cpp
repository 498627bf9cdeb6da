// SPDX-FileCopyrightText: 2026 The qmClient authors
// SPDX-License-Identifier: GPL-3.0-or-later
#include "platform/forms/ListViewMessages.h"

#include "tests/platform/forms/CallListFixture.h"

namespace forms {
namespace {

constexpr std::intptr_t kStateMask = -4096;

class ListViewMessages : public CallListFixture {
protected:
    std::intptr_t setState(int row, std::uint32_t state, std::uint32_t mask) {
        const ListItemState change{state, mask};
        return list.sendMessage(LVM_SETITEMSTATE, row, reinterpret_cast<std::intptr_t>(&change));
    }
    std::intptr_t state(int row, std::intptr_t mask = kStateMask) {
        return list.sendMessage(LVM_GETITEMSTATE, row, mask);
    }
    std::intptr_t setStyle(std::intptr_t mask, std::intptr_t style) {
        return list.sendMessage(LVM_SETEXTENDEDLISTVIEWSTYLE, mask, style);
    }
    std::intptr_t style() { return list.sendMessage(LVM_GETEXTENDEDLISTVIEWSTYLE, 0, 0); }
};

TEST_F(ListViewMessages, OnlyMaskedStyleBitsChange) {
    setStyle(0, 0);
    EXPECT_EQ(setStyle(32, -1), 0);
    EXPECT_EQ(style(), 32);
    EXPECT_EQ(setStyle(4, -1), 32);
    EXPECT_EQ(style(), 36);
    EXPECT_EQ(setStyle(32, 0), 36);
    EXPECT_EQ(style(), 4);
}

TEST_F(ListViewMessages, AnItemIsUncheckedUntilItIsChecked) {
    fill(2);
    setStyle(4, -1);
    EXPECT_EQ(state(0), 4096);
    EXPECT_EQ(setState(0, 8192, 0xFFFFF000), 1);
    EXPECT_EQ(state(0), 8192);
    EXPECT_EQ(state(1), 4096);
    EXPECT_TRUE(list.ListItems().Item(1).Checked());
    EXPECT_EQ(setState(0, 4096, 0xFFFFF000), 1);
    EXPECT_EQ(state(0), 4096);
}

TEST_F(ListViewMessages, WithoutCheckBoxesThereIsNoStateImage) {
    fill(1);
    EXPECT_EQ(state(0), 0);
}

TEST_F(ListViewMessages, AnItemThatIsNotThereHasNoState) {
    fill(1);
    setStyle(4, -1);
    EXPECT_EQ(state(1), 0);
    EXPECT_EQ(state(-1), 0);
    EXPECT_EQ(setState(1, 8192, 0xFFFFF000), 0);
    EXPECT_EQ(setState(-2, 8192, 0xFFFFF000), 0);
    EXPECT_EQ(state(0), 4096);
}

TEST_F(ListViewMessages, EveryItemIsMeantByMinusOne) {
    fill(3);
    setStyle(4, -1);
    EXPECT_EQ(setState(-1, 8192, 0xFFFFF000), 1);
    EXPECT_EQ(state(0) + state(1) + state(2), 3 * 8192);
}

TEST_F(ListViewMessages, SelectionAndFocusAreItemStates) {
    fill(2);
    setState(1, LVIS_SELECTED, LVIS_SELECTED);
    EXPECT_EQ(state(1, LVIS_SELECTED), std::intptr_t{LVIS_SELECTED});
    click(1);
    EXPECT_EQ(state(0, LVIS_SELECTED | LVIS_FOCUSED), std::intptr_t{LVIS_SELECTED | LVIS_FOCUSED});
    EXPECT_EQ(state(1, LVIS_SELECTED | LVIS_FOCUSED), 0);
}

TEST_F(ListViewMessages, TheSpaceKeyChecksTheFocusedItem) {
    fill(2);
    setStyle(4, -1);
    click(2);
    QTest::keyClick(&view(), Qt::Key_Space);
    EXPECT_EQ(state(1), 8192);
    QTest::keyClick(&view(), Qt::Key_Space);
    EXPECT_EQ(state(1), 4096);
}

TEST_F(ListViewMessages, AClickOnTheBoxChecksTheItem) {
    fill(2);
    setStyle(4, -1);
    const QRect first = view().visualRect(view().model()->index(1, 0));
    QTest::mouseClick(view().viewport(), Qt::LeftButton, {}, QPoint(first.left() + 10, first.center().y()));
    EXPECT_EQ(state(1), 8192);
    EXPECT_EQ(state(0), 4096);
}

TEST_F(ListViewMessages, OtherMessagesAnswerNothing) {
    EXPECT_EQ(list.sendMessage(4096, 1, 2), 0);
}

} // namespace
} // namespace forms
