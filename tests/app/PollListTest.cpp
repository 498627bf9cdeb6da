// SPDX-FileCopyrightText: 2026 The qmClient authors
// SPDX-License-Identifier: GPL-3.0-or-later
// What a poll does to the list that is shown, and to each mailbox's own count.
#include "tests/app/MainWorld.h"

namespace app {
namespace {

class PollListTest : public MainWorld {
protected:
    data::clsMailbox& watched(int index) { return *window->state().config->Mailboxes.at(index); }
    void select(int tab) {
        tabStrip().SetSelectedItem(tab);
        window->LoadList();
    }
    // The place of the second tab, which is selected for it, as the poll reads it.
    std::string placeOfSecondTab() {
        select(2);
        return std::to_string(tabStrip().SelectedItem()->Left.value).substr(1);
    }
    // Gives the first mailbox a name that moves the second tab to a place that is the second one's number.
    int makePlaceANumber() {
        for (std::string name = "x"; name.size() < 50; name += 'x') {
            watched(1).Name = name;
            window->InitData();
            const std::string place = placeOfSecondTab();
            if (!place.empty() && place[0] != '0')
                return std::stoi(place);
        }
        return 0;
    }
};

TEST_F(PollListTest, APollThatFindsNothingNewLeavesTheSelectionAlone) {
    configure({12});
    mailbox(12).append(3);
    load();
    list().SetSelectedItem(list().ListItems().Item(2));
    tick();
    ASSERT_TRUE(list().SelectedItem().has_value());
    EXPECT_EQ(list().SelectedItem()->Key(), "KC2");
}

TEST_F(PollListTest, EachMailboxCountsItsOwnNewCalls) {
    configure({12, 15});
    mailbox(12).append(4);
    mailbox(15).append(4);
    load();
    EXPECT_EQ(watched(1).NewCallCount, 0) << "what was there at the start is not new";
    mailbox(12).append(2);
    mailbox(15).append(5);
    tick();
    mailbox(15).append(1);
    tick();
    EXPECT_EQ(watched(1).NewCallCount, 2);
    EXPECT_EQ(watched(2).NewCallCount, 6);
    EXPECT_EQ(window->state().newCallTotal, 8);
}

TEST_F(PollListTest, WithTabsTheListIsReloadedForTheMailboxWhoseNumberIsTheTabsPlace) {
    configure({12, 15});
    mailbox(12).append(1);
    mailbox(15).append(1);
    load();
    const int number = makePlaceANumber();
    ASSERT_GT(number, 0);
    watched(2).ID = number;
    mailbox(number).append(1);
    window->InitData();
    ASSERT_EQ(placeOfSecondTab(), std::to_string(number));
    mailbox(12).append(1);
    mailbox(number).append(2);
    tick();
    EXPECT_EQ(column(0).size(), 3U);
    select(1);
    mailbox(12).append(1);
    tick();
    EXPECT_EQ(column(0).size(), 2U) << "as it was when the tab was selected";
}

TEST_F(PollListTest, PlayerIsPutBackByTheNextPollOnly) {
    configure({12});
    mailbox(12).append(1);
    load();
    tick();
    auto& place = window->ab().Bands("Status").Tools("miSProgress");
    place.SetCustom(nullptr);
    tick();
    EXPECT_EQ(place.Custom(), nullptr);
    window->state().redock = true;
    tick();
    EXPECT_EQ(place.Custom(), &player());
    EXPECT_FALSE(window->state().redock);
}

} // namespace
} // namespace app
