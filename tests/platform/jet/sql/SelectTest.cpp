// SPDX-FileCopyrightText: 2026 The qmClient authors
// SPDX-License-Identifier: GPL-3.0-or-later
#include "tests/platform/jet/sql/SqlTest.h"

namespace jet::test {
namespace {

using ::testing::ElementsAre;
using ::testing::IsEmpty;
using Select = SqlTest;

constexpr std::string_view kListStatement =
    "SELECT *, MessageLength & 's' AS MessageLengthS FROM CallLog ORDER BY ID DESC";

TEST_F(Select, ListStatementAnswersNewestFirst) {
    EXPECT_THAT(column(kListStatement), ElementsAre("3", "2", "1"));
    EXPECT_THAT(column(kListStatement, 4), ElementsAre("O'Neil", "Null", "Günther Öl"));
}

TEST_F(Select, MessageLengthOfZeroIsShownAsZeroSeconds) {
    EXPECT_THAT(column(kListStatement, 8), ElementsAre("s", "0s", "12s"));
}

TEST_F(Select, AllColumnsComeInTheTablesOrderWithTypes) {
    const auto records = execute(kListStatement);
    ASSERT_EQ(records->fieldCount(), 9U);
    EXPECT_EQ(records->fieldName(0), "ID");
    EXPECT_EQ(records->fieldName(8), "MessageLengthS");
    EXPECT_EQ(records->fieldType("Answered"), 11);
    EXPECT_EQ(records->fieldType("callid"), 202);
    EXPECT_EQ(records->fieldType("ID"), 3);
    EXPECT_EQ(records->fieldType("CallDate"), 7);
    EXPECT_EQ(records->fieldType("CallDetails"), 203);
    EXPECT_EQ(records->fieldType("MessageLengthS"), 202);
}

TEST_F(Select, NullEmptyTextAndLongTextComeAsTheyAre) {
    const auto records = execute("SELECT * FROM CallLog ORDER BY ID DESC");
    EXPECT_EQ(records->Field("CallerID"), basic::Variant(std::string()));
    EXPECT_EQ(records->Field("CallDetails"), basic::Variant(std::string(20'000, 'd')));
    EXPECT_EQ(records->Field("Answered"), basic::Variant(true));
    records->MoveNext();
    EXPECT_EQ(records->Field("CallerID"), basic::Variant(basic::Null()));
    EXPECT_EQ(records->Field("CallDetails"), basic::Variant(basic::Null()));
}

TEST_F(Select, CountAnswersOneNumber) {
    const auto records = execute("SELECT COUNT(*) FROM CallLog");
    EXPECT_EQ(records->Field(0), basic::Variant(std::int32_t{3}));
    EXPECT_EQ(records->fieldName(0), "Expr1000");
    records->MoveNext();
    EXPECT_TRUE(records->eof());
    EXPECT_THAT(column("select count ( * ) as n from [calllog] where Answered ;"), ElementsAre("2"));
    EXPECT_THAT(column("SELECT COUNT(*) FROM Empty"), ElementsAre("0"));
}

TEST_F(Select, EmptyTableHasColumnsAndNoRows) {
    const auto records = execute("SELECT * FROM Empty");
    EXPECT_TRUE(records->eof());
    EXPECT_EQ(records->fieldCount(), 1U);
    EXPECT_ERROR(basic::kNoCurrentRecord, records->MoveFirst());
}

TEST_F(Select, FindsTheRowOfACall) {
    EXPECT_THAT(ids("CallID='A1'"), ElementsAre("1"));
    EXPECT_THAT(column("SELECT * FROM CallLog WHERE CallID='nobody'"), IsEmpty());
    EXPECT_EQ(execute("SELECT * FROM CallLog WHERE CallID='c3'")->Field("CallDetails"),
              basic::Variant(std::string(20'000, 'd')));
}

TEST_F(Select, ApostropheInACallIDIsASyntaxError) {
    EXPECT_ERROR(basic::kProviderSyntax, execute("SELECT * FROM CallLog WHERE CallID='it's'"));
    EXPECT_ERROR(basic::kProviderSyntax, execute("SELECT * FROM CallLog WHERE CallID='''"));
    EXPECT_THAT(ids("CallerName='O''Neil'"), ElementsAre("3"));
    EXPECT_THAT(ids("CallerName=\"O'Neil\""), ElementsAre("3"));
}

TEST_F(Select, TextComparesWithoutCase) {
    EXPECT_THAT(ids("CallerName='GÜNTHER ÖL'"), ElementsAre("1"));
    EXPECT_THAT(ids("CallID>'b'"), ElementsAre("2", "3"));
}

TEST_F(Select, ComparisonWithNullIsNeverTrue) {
    EXPECT_THAT(ids("MessageLength=Null"), IsEmpty());
    EXPECT_THAT(ids("MessageLength<>12"), ElementsAre("2"));
    EXPECT_THAT(ids("NOT MessageLength=12"), ElementsAre("2"));
    EXPECT_THAT(ids("MessageLength IS NULL"), ElementsAre("3"));
    EXPECT_THAT(ids("CallerID IS NOT NULL"), ElementsAre("1", "3"));
}

TEST_F(Select, UnknownTruthFollowsThreeValuedLogic) {
    EXPECT_THAT(ids("MessageLength=12 OR ID>=2"), ElementsAre("1", "2", "3"));
    EXPECT_THAT(ids("NOT (MessageLength=12 AND ID=3)"), ElementsAre("1", "2"));
    EXPECT_THAT(ids("NOT (MessageLength=12 AND ID=1)"), ElementsAre("2", "3"));
    EXPECT_THAT(ids("NULL OR TRUE"), ElementsAre("1", "2", "3"));
    EXPECT_THAT(ids("NOT NULL"), IsEmpty());
}

TEST_F(Select, AndBindsTighterThanOrAndNotTighterThanAnd) {
    EXPECT_THAT(ids("ID=1 OR ID=2 AND ID=3"), ElementsAre("1"));
    EXPECT_THAT(ids("(ID=1 OR ID=2) AND ID=2"), ElementsAre("2"));
    EXPECT_THAT(ids("NOT ID=1 AND ID<3"), ElementsAre("2"));
}

TEST_F(Select, ComparesNumbersOfAllKinds) {
    EXPECT_THAT(ids("ID>=1.5 AND ID<=2.5e0"), ElementsAre("2"));
    EXPECT_THAT(ids("MessageLength>-1"), ElementsAre("1", "2"));
    EXPECT_THAT(ids("Answered=TRUE"), ElementsAre("1", "3"));
    EXPECT_THAT(ids("Answered=-1"), ElementsAre("1", "3"));
    EXPECT_THAT(ids("NOT Answered"), ElementsAre("2"));
}

TEST_F(Select, ReadsDatesMonthFirst) {
    EXPECT_THAT(ids("CallDate=#5/6/2024 7:08 AM#"), ElementsAre("1"));
    EXPECT_THAT(ids("CallDate>=#2024-05-07#"), ElementsAre("2"));
    EXPECT_THAT(ids("CallDate<#5/6/2024 07:08:01#"), ElementsAre("1"));
}

TEST_F(Select, ConcatenationTakesNullForEmptyText) {
    EXPECT_THAT(column("SELECT CallerID & '|' & MessageLength & '|' & Answered FROM CallLog"),
                ElementsAre("+4930|12|-1", "|0|0", "||-1"));
    EXPECT_THAT(column("SELECT NULL & NULL FROM CallLog WHERE ID=1"), ElementsAre(""));
}

TEST_F(Select, OrdersBySeveralColumnsWithNullFirst) {
    EXPECT_THAT(column("SELECT ID FROM CallLog ORDER BY Answered, ID DESC"), ElementsAre("3", "1", "2"));
    EXPECT_THAT(column("SELECT ID FROM CallLog ORDER BY MessageLength"), ElementsAre("3", "2", "1"));
    EXPECT_THAT(column("SELECT ID FROM CallLog ORDER BY CallerName DESC"), ElementsAre("3", "1", "2"));
    EXPECT_THAT(column("SELECT ID FROM CallLog ORDER BY CallLog.CallDate ASC"), ElementsAre("3", "1", "2"));
}

TEST_F(Select, ExpressionsWithoutAnAliasGetANumberedName) {
    const auto records = execute("SELECT ID, ID & 'x', CallLog.CallID, 1 AS [one more] FROM CallLog");
    EXPECT_EQ(records->fieldName(1), "Expr1001");
    EXPECT_EQ(records->fieldName(2), "CallID");
    EXPECT_EQ(records->Field("ONE MORE"), basic::Variant(std::int32_t{1}));
}

TEST_F(Select, UnknownTableAndColumnHaveTheProvidersNumbers) {
    EXPECT_ERROR(basic::kProviderNoTable, execute("SELECT * FROM Nothing"));
    EXPECT_ERROR(basic::kProviderNoTable, execute("SELECT COUNT(*) FROM Nothing"));
    EXPECT_ERROR(basic::kProviderNoValue, execute("SELECT Nothing FROM CallLog"));
    EXPECT_ERROR(basic::kProviderNoValue, execute("SELECT * FROM CallLog WHERE Nothing=1"));
    EXPECT_ERROR(basic::kProviderNoValue, execute("SELECT * FROM CallLog ORDER BY Nothing"));
    EXPECT_ERROR(basic::kProviderNoValue, execute("SELECT Other.ID FROM CallLog"));
}

TEST_F(Select, ComparingDifferentKindsIsAMismatchWhateverTheRows) {
    EXPECT_ERROR(basic::kProviderMismatch, execute("SELECT * FROM CallLog WHERE CallID=1"));
    EXPECT_ERROR(basic::kProviderMismatch, execute("SELECT * FROM CallLog WHERE ID='1'"));
    EXPECT_ERROR(basic::kProviderMismatch, execute("SELECT * FROM Empty WHERE ID='1'"));
    EXPECT_ERROR(basic::kProviderMismatch, execute("SELECT * FROM CallLog WHERE CallID"));
    EXPECT_ERROR(basic::kProviderMismatch, execute("SELECT * FROM CallLog WHERE NOT CallID"));
}

TEST_F(Select, CountGoesWithNothingElse) {
    EXPECT_ERROR(basic::kProviderSyntax, execute("SELECT COUNT(*), ID FROM CallLog"));
    EXPECT_ERROR(basic::kProviderSyntax, execute("SELECT COUNT(*) FROM CallLog ORDER BY ID"));
}

} // namespace
} // namespace jet::test
