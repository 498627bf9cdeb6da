// SPDX-FileCopyrightText: 2026 The qmClient authors
// SPDX-License-Identifier: GPL-3.0-or-later
#include "tests/platform/jet/sql/SqlTest.h"

namespace jet::test {
namespace {

class RecordsetTest : public SqlTest {
protected:
    RecordsetTest() : SqlTest(500) {}
};

TEST_F(RecordsetTest, RecordCountIsUnknown) {
    EXPECT_EQ(execute("SELECT * FROM CallLog")->RecordCount(), -1);
}

TEST_F(RecordsetTest, WalksForwardToItsEnd) {
    const auto records = execute("SELECT ID FROM CallLog ORDER BY ID DESC");
    std::int32_t expected = 503;
    for (; !records->eof(); records->MoveNext())
        EXPECT_EQ(records->Field(0), basic::Variant(expected--));
    EXPECT_EQ(expected, 0);
    EXPECT_ERROR(basic::kNoCurrentRecord, records->MoveNext());
    EXPECT_ERROR(basic::kNoCurrentRecord, records->Field(0));
    records->MoveFirst();
    EXPECT_EQ(records->Field(0), basic::Variant(std::int32_t{503}));
}

TEST_F(RecordsetTest, FieldsAreFoundWithoutCaseAndUnknownOnesAreError3265) {
    const auto records = execute("SELECT ID, CallID FROM CallLog");
    EXPECT_EQ(records->Field("callid"), records->Field(1));
    EXPECT_ERROR(basic::kItemNotInCollection, records->Field("Nothing"));
    EXPECT_ERROR(basic::kItemNotInCollection, records->Field(2));
    EXPECT_ERROR(basic::kItemNotInCollection, records->fieldType(2));
    EXPECT_ERROR(basic::kItemNotInCollection, records->fieldName(2));
}

TEST_F(RecordsetTest, ClosedOneAnswersNothing) {
    const auto records = execute("SELECT ID FROM CallLog");
    EXPECT_EQ(records->State(), 1);
    records->Close();
    EXPECT_EQ(records->State(), 0);
    EXPECT_ERROR(basic::kObjectClosed, records->eof());
    EXPECT_ERROR(basic::kObjectClosed, records->Field(0));
    EXPECT_ERROR(basic::kObjectClosed, records->MoveNext());
    EXPECT_ERROR(basic::kObjectClosed, records->MoveFirst());
    EXPECT_ERROR(basic::kObjectClosed, records->RecordCount());
    EXPECT_ERROR(basic::kObjectClosed, records->Close());
    EXPECT_ERROR(basic::kObjectClosed, Recordset().fieldCount());
}

} // namespace
} // namespace jet::test
