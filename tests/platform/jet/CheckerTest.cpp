// SPDX-FileCopyrightText: 2026 The qmClient authors
// SPDX-License-Identifier: GPL-3.0-or-later
#include "platform/jet/Checker.h"

#include "tests/platform/jet/FailureOf.h"
#include "tests/platform/jet/SourceOf.h"

#include <gmock/gmock.h>

namespace jet {
namespace {

using test::kLogDefinition;
using test::kLogRows;
using test::kLongValues;
using test::kMapPage;
using test::kMoreLongValues;
using testing::ElementsAre;
using testing::HasSubstr;
using testing::IsEmpty;

class CheckerOfSmallDatabase : public testing::Test {
protected:
    CheckReport check() {
        test::SourceOf source(image);
        return Checker(source.pages).run();
    }
    std::string complaint() {
        return test::failureOf([this] { check(); });
    }
    // Maps of the catalog, of Log and of its notes; each of Log's as given.
    void setMaps(std::initializer_list<PageNumber> rows, std::initializer_list<PageNumber> withSpace,
                 std::initializer_list<PageNumber> notes) {
        image.putRows(kMapPage, 0,
                      {test::inlineMap({test::kCatalogPage}), test::inlineMap({}), test::inlineMap(rows),
                       test::inlineMap(withSpace), test::inlineMap(notes), test::inlineMap({})});
    }
    void setNote(const test::Bytes& header) {
        image.putRows(kLogRows, kLogDefinition, {test::logRow(1, "ann", header)});
    }

    test::Image image = test::smallDatabase();
};

TEST_F(CheckerOfSmallDatabase, CountsWhatItReads) {
    const CheckReport report = check();
    EXPECT_EQ(report.tables, 2U);
    EXPECT_EQ(report.rows, 6U);
    EXPECT_EQ(report.usedPages, test::kSmallPages);
    EXPECT_EQ(report.longValues, 0U);
    EXPECT_THAT(report.remarks, IsEmpty());
}

TEST_F(CheckerOfSmallDatabase, RemarksAWrongRowCount) {
    image.putU32(kLogDefinition, format::definition::kRowCount, 4);
    EXPECT_THAT(check().remarks, ElementsAre(HasSubstr("the definition states 4 rows, 3 are there")));
}

TEST_F(CheckerOfSmallDatabase, NamesAPageUsedTwice) {
    setMaps({kLogRows, test::kCatalogPage}, {}, {});
    EXPECT_THAT(complaint(),
                HasSubstr("page 4: the page is used twice: for rows of MSysObjects and for rows of Log"));
    setMaps({kLogRows}, {}, {kLogRows});
    EXPECT_THAT(complaint(),
                HasSubstr("page 6: the page is used twice: for rows of Log and for long values in Note"));
}

TEST_F(CheckerOfSmallDatabase, NamesAPageMarkedFreeWhileInUse) {
    image.putRows(1, 1, {test::freeMapFrom(8), test::Bytes(69)});
    EXPECT_THAT(complaint(),
                HasSubstr("page 8: the page is marked free, but used for long values in Note of Log"));
}

TEST_F(CheckerOfSmallDatabase, NamesAPageTheFreeMapDoesNotCover) {
    test::Bytes shortMap = test::freeMapFrom(test::kSmallPages);
    shortMap.resize(6); // pages 0 to 7
    shortMap[5] = std::byte{0};
    image.putRows(1, 1, {shortMap, test::Bytes(69)});
    EXPECT_THAT(complaint(), HasSubstr("page 8: the page is marked free"));
}

TEST_F(CheckerOfSmallDatabase, NamesAPageWithSpaceThatIsNotTheTables) {
    setMaps({kLogRows}, {kLogRows, kLongValues}, {kMoreLongValues});
    EXPECT_THAT(complaint(), HasSubstr("table Log, page 7: the page is listed as having space, but not as"));
}

TEST_F(CheckerOfSmallDatabase, NamesWrongFreeBytesOfADataPage) {
    image.putU16(kLogRows, format::page::kFreeBytes, 4000);
    EXPECT_THAT(complaint(), HasSubstr("page 6: the free bytes are not what the rows leave"));
}

TEST_F(CheckerOfSmallDatabase, NamesAMovedRowThatNobodyPointsTo) {
    image.setSlotFlags(kLogRows, 1, format::dataPage::kRelocated);
    EXPECT_THAT(complaint(), HasSubstr("0 rows were moved, but 1 moved rows are there"));
}

TEST_F(CheckerOfSmallDatabase, NamesARowThatCannotBeDecoded) {
    image.putRows(kLogRows, kLogDefinition, {test::fromHex("05 00 01 02 1F")});
    EXPECT_THAT(complaint(), HasSubstr("table Log, page 6, row 0: "));
}

TEST_F(CheckerOfSmallDatabase, CountsLongValues) {
    image.putRows(kLongValues, format::dataPage::kLongValueOwner, {test::utf16("note")});
    image.putU32(kLogDefinition, format::definition::kRowCount, 1);
    setNote(test::longValueHeader(format::longValue::kSingleRow | 8, {kLongValues, 0}));
    EXPECT_EQ(check().longValues, 1U);
}

TEST_F(CheckerOfSmallDatabase, NamesALongValueThatIsShorterThanStated) {
    image.putRows(kLongValues, format::dataPage::kLongValueOwner, {test::utf16("note")});
    setNote(test::longValueHeader(format::longValue::kSingleRow | 9, {kLongValues, 0}));
    EXPECT_THAT(complaint(), HasSubstr("column Note is shorter than its stated length of 9"));
}

TEST_F(CheckerOfSmallDatabase, NamesALongValueOnAPageThatIsNotListed) {
    image.putRows(kLongValues, format::dataPage::kLongValueOwner, {test::utf16("note")});
    setNote(test::longValueHeader(format::longValue::kSingleRow | 8, {kLongValues, 0}));
    setMaps({kLogRows}, {}, {kMoreLongValues});
    EXPECT_THAT(complaint(),
                HasSubstr("page 7: the page holds a long value of Note, but is not listed as such"));
}

TEST_F(CheckerOfSmallDatabase, NamesATableWhoseDefinitionIsGone) {
    image.putU8(kLogDefinition, 0, format::page::kFreedDefinition);
    EXPECT_THAT(complaint(),
                HasSubstr("table Log, page 5: a page of a table definition is expected, the type is 8"));
}

} // namespace
} // namespace jet
