// SPDX-FileCopyrightText: 2026 The qmClient authors
// SPDX-License-Identifier: GPL-3.0-or-later
#include "data/ListToClipBoard.h"

#include "tests/data/NotedClipboard.h"
#include "tests/errors/RecordingErrorHandler.h"

#include <gtest/gtest.h>

#include <string>

namespace data {
namespace {

class ListToClipBoardTest : public testing::Test {
protected:
    ListToClipBoardTest() {
        list.SetMultiSelect(true);
        list.ColumnHeaders().Add("", {70});
        list.ColumnHeaders().Add("Date", {1700});
        list.ColumnHeaders().Add("Name", {1700});
    }
    forms::ListItem add(const std::string& text, const std::string& date, const std::string& name) {
        forms::ListItem item = list.ListItems().Add({}, text);
        item.SetSubItems(1, date);
        item.SetSubItems(2, name);
        return item;
    }
    void addSelected(const std::string& text, const std::string& date, const std::string& name) {
        add(text, date, name).SetSelected(true);
    }
    std::string copied() {
        EXPECT_TRUE(ListToClipBoard(errors, list, clipboard));
        return clipboard.text;
    }

    errors::RecordingErrorHandler errors;
    NotedClipboard clipboard;
    forms::ListView list;
};

TEST_F(ListToClipBoardTest, HeaderAnEmptyLineAndTheSelectedRowsInListOrder) {
    addSelected("", "1.3.", "Anna");
    add("", "2.3.", "left out");
    addSelected("", "3.3.", "Bert");
    EXPECT_EQ(copied(), "\tDate\tName\t\r\n\r\n\t1.3.\tAnna\t\r\n\t3.3.\tBert\t\r\n");
    EXPECT_EQ(clipboard.cleared, 1);
}

TEST_F(ListToClipBoardTest, HiddenHeaderIsLeftOutWithItsEmptyLine) {
    list.SetHideColumnHeaders(true);
    addSelected("", "1.3.", "Anna");
    EXPECT_EQ(copied(), "\t1.3.\tAnna\t\r\n");
}

TEST_F(ListToClipBoardTest, TabsBecomeBlanksInCaptionsAndInEveryColumn) {
    list.ColumnHeaders().Clear();
    for (const char* caption : {"a\tb", "\t", "c"})
        list.ColumnHeaders().Add(caption, {100});
    addSelected("x\ty", "\t\t", "An\tna");
    EXPECT_EQ(copied(), "a b\t \tc\t\r\n\r\nx y\t  \tAn na\t\r\n");
}

TEST_F(ListToClipBoardTest, LineEndsBecomeBlanksInTheFirstColumnOnly) {
    list.SetHideColumnHeaders(true);
    addSelected("x\r\ny\r\n", "1\r\n2", "a\nb\rc");
    EXPECT_EQ(copied(), "x y \t1\r\n2\ta\nb\rc\t\r\n");
}

TEST_F(ListToClipBoardTest, NothingSelectedLeavesTheHeaderAlone) {
    add("", "1.3.", "Anna");
    EXPECT_EQ(copied(), "\tDate\tName\t\r\n\r\n");
}

TEST_F(ListToClipBoardTest, FailureIsReportedUnderTheProceduresNamesAndIgnoreGoesOn) {
    clipboard.isLocked = true;
    errors = errors::RecordingErrorHandler{errors::ErrorAction::Ignore};
    list.SetHideColumnHeaders(true);
    addSelected("", "1.3.", "Anna");
    EXPECT_EQ(copied(), "\t1.3.\tAnna\t\r\n");
    ASSERT_EQ(errors.reports.size(), 1U);
    EXPECT_EQ(errors.reports[0].module, "basCommon");
    EXPECT_EQ(errors.reports[0].procedure, "ListToClipBoard");
    EXPECT_EQ(errors.reports[0].number, 521);
}

TEST_F(ListToClipBoardTest, AbortAnswersFalseAndSetsNothing) {
    clipboard.isLocked = true;
    EXPECT_FALSE(ListToClipBoard(errors, list, clipboard));
    EXPECT_EQ(clipboard.text, "from before");
}

} // namespace
} // namespace data
