// SPDX-FileCopyrightText: 2026 The qmClient authors
// SPDX-License-Identifier: GPL-3.0-or-later
// Stepping through the list, and the rules of the current connection.
#include "app/CommandBarLayout.h"
#include "tests/app/MainWorld.h"

#include <QAbstractItemView>

namespace app {
namespace {

class SelectionTest : public MainWorld {
protected:
    void loadCalls(int count, const std::vector<int>& ids = {12}) {
        configure(ids);
        for (const int id : ids)
            mailbox(id).append(count);
        load();
        QObject::connect(&*window, &frmMain::ItemChanged, &*window,
                         [this](const auto& connection, const std::string& callID) {
                             told.push_back(callID);
                             toldConnection = connection;
                         });
    }
    void select(int index) { list().SetSelectedItem(list().ListItems().Item(index)); }
    std::vector<int> selected() {
        std::vector<int> indexes;
        for (int i = 1; i <= list().ListItems().Count(); ++i)
            if (list().ListItems().Item(i).Selected())
                indexes.push_back(i);
        return indexes;
    }

    std::vector<std::string> told;
    std::shared_ptr<jet::Connection> toldConnection;
};

using Indexes = std::vector<int>;
using Told = std::vector<std::string>;

TEST_F(SelectionTest, MoveListGoesToTheNeighbourAndTellsIt) {
    loadCalls(3); // newest first: C3, C2, C1
    select(2);
    window->MoveList(true);
    EXPECT_EQ(selected(), Indexes{3});
    window->MoveList(false);
    EXPECT_EQ(selected(), Indexes{2});
    EXPECT_EQ(told, (Told{"C1", "C2"}));
}

TEST_F(SelectionTest, MoveListUpFromTheFirstChangesNothingAndRaisesNoEvent) {
    loadCalls(3);
    select(1);
    window->MoveList(false);
    EXPECT_EQ(selected(), Indexes{1});
    EXPECT_TRUE(told.empty());
}

TEST_F(SelectionTest, MoveListDownFromTheLastChangesNothingAndRaisesNoEvent) {
    loadCalls(3);
    select(3);
    window->MoveList(true);
    EXPECT_EQ(selected(), Indexes{3});
    EXPECT_TRUE(told.empty());
}

TEST_F(SelectionTest, MoveListWithoutASelectedEntryDoesNothing) {
    loadCalls(3);
    window->MoveList(true);
    EXPECT_TRUE(selected().empty());
    EXPECT_TRUE(told.empty());
}

TEST_F(SelectionTest, MoveListLeavesOnlyTheNeighbourOfTheFocusedEntrySelected) {
    loadCalls(5);
    select(1);
    select(2);
    select(4); // has the focus
    EXPECT_EQ(selected(), (Indexes{1, 2, 4}));
    window->MoveList(true);
    EXPECT_EQ(selected(), Indexes{5});
    EXPECT_EQ(told, Told{"C1"});
    EXPECT_TRUE(list().MultiSelect());
}

TEST_F(SelectionTest, MoveListAfterSelectAllLeavesOneSelected) {
    loadCalls(5);
    select(3);
    window->ab_ToolClick("miESelectAll");
    window->MoveList(false);
    EXPECT_EQ(selected(), Indexes{2});
}

TEST_F(SelectionTest, MoveListScrollsTheReachedEntryIntoView) {
    loadCalls(200);
    window->showWindow();
    auto& view = *list().findChild<QAbstractItemView*>();
    const auto isInView = [&](int index) {
        return view.viewport()->rect().contains(view.visualRect(view.model()->index(index - 1, 1)));
    };
    select(99);
    ASSERT_FALSE(isInView(150));
    list().SetSelectedItem(list().ListItems().Item(149));
    window->MoveList(true);
    EXPECT_TRUE(isInView(150));
}

TEST_F(SelectionTest, SteppingLeavesTheButtonsForTheNextListEvent) {
    configure({12});
    mailbox(12).append({"A1", "x", 0});
    mailbox(12).append({"A2", "x", 5});
    load();
    select(2); // A1, without a message
    window->UpdateButtonStates();
    const auto mayPlay = [this] { return window->ab().Bands(kBandStatus).Tools("miSPlay").Enabled(); };
    ASSERT_FALSE(mayPlay());
    window->MoveList(false);
    EXPECT_FALSE(mayPlay());
}

TEST_F(SelectionTest, ConnectionIsOpenedWithTheFirstCallAndKept) {
    loadCalls(2);
    window->ChangeItem();
    EXPECT_EQ(toldConnection, nullptr);
    select(1);
    window->ChangeItem();
    const auto first = toldConnection;
    ASSERT_NE(first, nullptr);
    window->MoveList(true);
    EXPECT_EQ(toldConnection, first);
    window->LoadList();
    EXPECT_EQ(told.back(), "-1");
    EXPECT_EQ(toldConnection, first);
}

TEST_F(SelectionTest, BuildingEverythingAnewDropsTheConnection) {
    loadCalls(2);
    select(1);
    window->ChangeItem();
    const std::weak_ptr<jet::Connection> first = toldConnection;
    window->InitData();
    EXPECT_EQ(toldConnection, nullptr);
    EXPECT_TRUE(first.expired());
}

TEST_F(SelectionTest, MissingConnectionIsTriedAgainWithTheNextCall) {
    loadCalls(2);
    const auto away = folder.path("share/away.mdb");
    std::filesystem::rename(mailbox(12).path(), away);
    select(1);
    window->ChangeItem();
    EXPECT_EQ(told.back(), "C2");
    EXPECT_EQ(toldConnection, nullptr);
    std::filesystem::rename(away, mailbox(12).path());
    window->ChangeItem();
    EXPECT_NE(toldConnection, nullptr);
    EXPECT_TRUE(errorHandler.reports.empty());
}

TEST_F(SelectionTest, WithoutMailboxesNoCallIsToldWithTheConnectionThereIs) {
    loadCalls(2);
    select(1);
    window->ChangeItem();
    const auto current = toldConnection;
    window->state().config->Clear();
    window->ChangeItem();
    EXPECT_EQ(told.back(), "-1");
    EXPECT_EQ(toldConnection, current);
}

TEST_F(SelectionTest, TwentyMailboxesHaveTwentyTabsAndEachItsOwnConnection) {
    std::vector<int> ids;
    for (int id = 1; id <= 20; ++id)
        ids.push_back(id);
    loadCalls(1, ids);
    ASSERT_EQ(tabStrip().Tabs().Count(), 20);
    for (int tab = 1; tab <= 20; ++tab) {
        tabStrip().SetSelectedItem(tab);
        Q_EMIT tabStrip().Click();
        EXPECT_EQ(toldConnection, nullptr);
        select(1);
        window->ChangeItem();
        EXPECT_NE(toldConnection, nullptr) << tab;
    }
    EXPECT_TRUE(errorHandler.reports.empty());
}

} // namespace
} // namespace app
