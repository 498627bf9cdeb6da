// SPDX-FileCopyrightText: 2026 The qmClient authors
// SPDX-License-Identifier: GPL-3.0-or-later
#include "data/FillListView2.h"

#include "platform/basic/ErrorNumbers.h"
#include "resources/StringTable.h"
#include "tests/data/MemoryRows.h"
#include "tests/errors/RecordingErrorHandler.h"

#include <gtest/gtest.h>

namespace data {
namespace {

constexpr std::int32_t kBoolean = 11;
constexpr std::int32_t kLong = 3;
constexpr std::int32_t kText = 202;

class FillListView2Test : public testing::Test {
protected:
    ~FillListView2Test() override { resources::setLanguage(resources::Language::English); }

    static jet::Recordset records(std::vector<Row> rows) {
        return jet::Recordset(std::make_unique<MemoryRows>(
            std::vector<jet::ResultColumn>{
                {"CallID", kText}, {"CallerName", kText}, {"Seen", kBoolean}, {"MessageLength", kLong}},
            std::move(rows)));
    }
    bool fill(jet::Recordset& rows, const std::vector<ColumnDescription>& columns, bool showHeaders = true,
              std::string_view selectedKey = {}) {
        return FillListView2(errors, format)(list, rows, columns, showHeaders, selectedKey);
    }
    bool fill(std::vector<Row> rows, const std::vector<ColumnDescription>& columns, bool showHeaders = true,
              std::string_view selectedKey = {}) {
        jet::Recordset set = records(std::move(rows));
        return fill(set, columns, showHeaders, selectedKey);
    }
    forms::ListItem item(int index) { return list.ListItems().Item(index); }

    const std::vector<ColumnDescription> iconAndName{{"", "", {70}, 0}, {"Name", "CallerName", {900}, 1}};
    errors::RecordingErrorHandler errors;
    basic::DateTimeFormat format;
    forms::ListView list;
};

TEST_F(FillListView2Test, ColumnsGetTheirCaptionWidthAndAlignment) {
    EXPECT_TRUE(
        fill({}, {{"Left", "", {70}, 0}, {"Right", "CallerName", {900}, 1}, {"Mid", "Seen", {5}, 2}}));
    ASSERT_EQ(list.ColumnHeaders().Count(), 3);
    const char* const captions[] = {"Left", "Right", "Mid"};
    const std::int32_t widths[] = {70, 900, 5};
    for (int column = 0; column < 3; ++column) {
        const forms::ColumnHeader& header = list.ColumnHeaders().Item(column + 1);
        EXPECT_EQ(header.Text, captions[column]);
        EXPECT_EQ(header.Width.value, widths[column]);
        EXPECT_EQ(header.Alignment, column);
    }
}

TEST_F(FillListView2Test, HeaderRowIsHiddenUnlessItIsToBeShown) {
    fill({}, iconAndName, false);
    EXPECT_TRUE(list.HideColumnHeaders());
    fill({}, iconAndName, true);
    EXPECT_FALSE(list.HideColumnHeaders());
}

TEST_F(FillListView2Test, WhatTheListHeldBeforeIsGone) {
    fill({{"A1", "first", true, 1}, {"A2", "second", true, 1}}, iconAndName);
    EXPECT_TRUE(fill({{"A1", "third", true, 1}}, {{"", "CallerName", {70}, 0}}));
    EXPECT_EQ(list.ColumnHeaders().Count(), 1);
    ASSERT_EQ(list.ListItems().Count(), 1);
    EXPECT_EQ(item(1).Text(), "third");
}

TEST_F(FillListView2Test, NoRecordsGiveTheHeadersAloneAndTrue) {
    EXPECT_TRUE(fill({}, iconAndName));
    EXPECT_EQ(list.ColumnHeaders().Count(), 2);
    EXPECT_EQ(list.ListItems().Count(), 0);
}

TEST_F(FillListView2Test, EveryRecordIsAnItemWithItsCallAsKey) {
    EXPECT_TRUE(fill({{"A2", "Anna", true, 1}, {"A1", "Bert", true, 1}}, iconAndName));
    ASSERT_EQ(list.ListItems().Count(), 2);
    EXPECT_EQ(item(1).Key(), "KA2");
    EXPECT_EQ(item(1).Text(), "");
    EXPECT_EQ(item(1).SubItems(1), "Anna");
    EXPECT_EQ(list.ListItems().Item("KA1").SubItems(1), "Bert");
}

TEST_F(FillListView2Test, FirstColumnTakesItsFieldWhenItNamesOne) {
    fill({{"A1", "Anna", true, 1}}, {{"Name", "CallerName", {900}, 0}});
    EXPECT_EQ(item(1).Text(), "Anna");
}

TEST_F(FillListView2Test, NullIsAnEmptyTextInTheFirstColumnAndInTheOthers) {
    EXPECT_TRUE(fill({{"A1", basic::Null{}, basic::Null{}, 1}},
                     {{"", "CallerName", {900}, 0}, {"", "CallerName", {900}, 0}, {"", "Seen", {9}, 0}}));
    EXPECT_EQ(item(1).Text(), "");
    EXPECT_EQ(item(1).SubItems(1), "");
    EXPECT_EQ(item(1).SubItems(2), "");
}

TEST_F(FillListView2Test, BooleansAreYesAndNoInTheUsersLanguage) {
    const std::vector<ColumnDescription> seenTwice{{"", "Seen", {9}, 0}, {"", "Seen", {9}, 0}};
    const std::vector<Row> rows{{"A1", "x", true, 1}, {"A2", "x", false, 1}};
    fill(rows, seenTwice);
    EXPECT_EQ(item(1).Text(), "Yes");
    EXPECT_EQ(item(1).SubItems(1), "Yes");
    EXPECT_EQ(item(2).Text(), "No");
    EXPECT_EQ(item(2).SubItems(1), "No");
    resources::setLanguage(resources::Language::German);
    fill(rows, seenTwice);
    EXPECT_EQ(item(1).SubItems(1), "Ja");
    EXPECT_EQ(item(2).SubItems(1), "Nein");
}

TEST_F(FillListView2Test, IconTellsWhetherTheLengthIsZero) {
    fill({{"A1", "x", true, 12}, {"A2", "x", true, 0}, {"A3", "x", true, basic::Null{}}}, iconAndName);
    EXPECT_EQ(item(1).SmallIcon(), 1);
    EXPECT_EQ(item(2).SmallIcon(), 8);
    EXPECT_EQ(item(3).SmallIcon(), 1);
}

TEST_F(FillListView2Test, TheSelectedKeySelectsNothing) {
    fill({{"A1", "x", true, 1}, {"A2", "x", true, 1}}, iconAndName, true, "KA2");
    EXPECT_FALSE(list.SelectedItem().has_value());
    EXPECT_FALSE(item(1).Selected());
    EXPECT_FALSE(item(2).Selected());
}

TEST_F(FillListView2Test, FieldThatIsNotThereIsReportedAndItsCellStaysEmptyOnIgnore) {
    errors = errors::RecordingErrorHandler{errors::ErrorAction::Ignore};
    EXPECT_TRUE(fill({{"A1", "Anna", true, 0}},
                     {{"", "", {70}, 0}, {"", "Nothing", {9}, 0}, {"", "CallerName", {9}, 0}}));
    ASSERT_EQ(errors.reports.size(), 1U);
    EXPECT_EQ(errors.reports[0].module, "basCommon");
    EXPECT_EQ(errors.reports[0].procedure, "FillListView2");
    EXPECT_EQ(errors.reports[0].number, basic::kItemNotInCollection);
    EXPECT_EQ(item(1).SubItems(1), "");
    EXPECT_EQ(item(1).SubItems(2), "Anna");
    EXPECT_EQ(item(1).SmallIcon(), 8);
}

TEST_F(FillListView2Test, AbortLeavesTheListAsFarAsItWasFilled) {
    EXPECT_FALSE(
        fill({{"A1", "Anna", true, 1}, {"A1", "again", true, 1}, {"A2", "Bert", true, 1}}, iconAndName));
    EXPECT_EQ(errors.reports.size(), 1U);
    ASSERT_EQ(list.ListItems().Count(), 1);
    EXPECT_EQ(item(1).SubItems(1), "Anna");
}

TEST_F(FillListView2Test, MoveThatFailsAndIsIgnoredEndsTheRows) {
    jet::Recordset set = records({{"A1", "Anna", true, 1}});
    set.Close();
    const auto ignore = errors::ErrorAction::Ignore;
    errors = errors::RecordingErrorHandler{ignore, ignore, ignore, ignore, ignore};
    EXPECT_FALSE(fill(set, iconAndName));
    EXPECT_EQ(errors.reports.size(), 4U); // count, end, row, move
    EXPECT_EQ(list.ListItems().Count(), 0);
}

} // namespace
} // namespace data
