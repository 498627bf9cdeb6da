// SPDX-FileCopyrightText: 2026 The qmClient authors
// SPDX-License-Identifier: GPL-3.0-or-later
// Calls as no well-meaning server would log them.
#include "tests/app/MainWorld.h"

#include <gmock/gmock.h>

#include <tuple>

namespace app {
namespace {

using testing::ElementsAre;

class CallListTest : public MainWorld {
protected:
    void SetUp() override { configure({12}); }
};

TEST_F(CallListTest, CallIDsKeepTheirQuotesBackslashesAndDots) {
    const std::vector<std::string> calls{"it's", "..\\..\\etc", "..", "a/b", "K", "\"'; DELETE"};
    for (const std::string& call : calls)
        mailbox(12).append({call, "Anna"});
    load();
    std::vector<std::string> told;
    QObject::connect(&*window, &frmMain::ItemChanged,
                     [&](const auto&, const std::string& callID) { told.push_back(callID); });
    for (std::size_t i = calls.size(); i > 0; --i) {
        list().SetSelectedItem(list().ListItems().Item("K" + calls[i - 1]));
        window->ChangeItem();
        EXPECT_EQ(told.back(), calls[i - 1]);
    }
    EXPECT_EQ(told.size(), calls.size());
    EXPECT_TRUE(errorHandler.reports.empty());
}

TEST_F(CallListTest, ColumnsHaveTheirHeadersWidthsAndAlignments) {
    mailbox(12);
    load();
    std::vector<std::tuple<std::string, int, int>> columns;
    for (int i = 1; i <= list().ColumnHeaders().Count(); ++i) {
        const auto& header = list().ColumnHeaders().Item(i);
        columns.emplace_back(header.Text, header.Width.value, header.Alignment);
    }
    EXPECT_THAT(columns, ElementsAre(std::tuple("", 70, 0), std::tuple("Date", 1700, 1),
                                     std::tuple("Caller ID", 900, 1), std::tuple("Caller Name", 1000, 1),
                                     std::tuple("Message", 600, 1)));
}

TEST_F(CallListTest, NamesAreShownAsTheyStand) {
    mailbox(12).append({"A1", "<b>bold</b><img src='x'>"});
    mailbox(12).append({"A2", "tab\there"});
    mailbox(12).append({"A3", "two\r\nlines"});
    mailbox(12).append({"A4", "a &amp; b && c"});
    load();
    EXPECT_THAT(column(3),
                ElementsAre("a &amp; b && c", "two\r\nlines", "tab\there", "<b>bold</b><img src='x'>"));
}

TEST_F(CallListTest, NameOfAMailboxIsShownOnItsTabAsItStands) {
    configure({12, 15});
    mailbox(12);
    mailbox(15);
    load();
    window->state().config->Mailboxes.at(1)->Name = "<b>R&D</b>";
    window->InitData();
    EXPECT_EQ(tabStrip().Tabs().Item(1).Caption, "<b>R&D</b>");
}

} // namespace
} // namespace app
