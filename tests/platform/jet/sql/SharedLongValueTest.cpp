// SPDX-FileCopyrightText: 2026 The qmClient authors
// SPDX-License-Identifier: GPL-3.0-or-later
// Rows that refer to one and the same long value. A small file could hold the client up for hours with them.

#include "tests/platform/jet/FailureOf.h"
#include "tests/platform/jet/Images.h"
#include "tests/platform/jet/sql/SqlTest.h"

namespace jet::test {
namespace {

using ::testing::HasSubstr;
using ::testing::SizeIs;

constexpr std::string_view kNotes = "SELECT * FROM Log";
constexpr std::string_view kChosenByNote = "SELECT COUNT(*) FROM Log WHERE Note = 'x'";
constexpr std::string_view kChosenTwice = "SELECT COUNT(*) FROM Log WHERE Note = 'x' OR Note = 'y'";
constexpr std::string_view kOrderedByNote = "SELECT ID FROM Log ORDER BY Note";

// As many bytes as the parts of one row together; compressed, so that its text has about as many characters.
constexpr std::size_t kNote = 4000;
constexpr std::size_t kHeldByTheFile = kSmallPages * format::page::kSize / kNote;

class SharedLongValue : public SqlTest {
protected:
    // A log whose rows have one note together.
    void share(std::size_t rows) {
        Image image = smallDatabase();
        Bytes note(kNote, std::byte{'n'});
        std::ranges::copy(fromHex("FF FE"), note.begin());
        image.putRows(kLongValues, format::dataPage::kLongValueOwner, {note});
        const Bytes field = longValueHeader(format::longValue::kSingleRow | kNote, {kLongValues, 0});
        std::vector<Bytes> log;
        for (std::uint32_t id = 1; id <= rows; ++id)
            log.push_back(logRow(id, "x", field));
        image.putRows(kLogRows, kLogDefinition, log);
        m_files.bytes = image.bytes;
    }
    std::string failure(std::string_view statement) {
        return failureOf([&] { execute(statement); });
    }
};

TEST_F(SharedLongValue, IsReadAsOftenAsTheFileCouldHoldIt) {
    share(kHeldByTheFile);
    EXPECT_THAT(column(kNotes), SizeIs(kHeldByTheFile));
    for (const std::string_view statement : {kChosenByNote, kChosenTwice, kOrderedByNote})
        EXPECT_EQ(failure(statement), "(no error)") << statement;
}

TEST_F(SharedLongValue, IsAnErrorBeyondThat) {
    share(kHeldByTheFile + 1);
    for (const std::string_view statement : {kNotes, kChosenByNote, kChosenTwice, kOrderedByNote})
        EXPECT_THAT(failure(statement), HasSubstr("several rows")) << statement;
}

TEST_F(SharedLongValue, DoesNotMatterToWhoeverDoesNotAskForIt) {
    share(kHeldByTheFile + 1);
    EXPECT_THAT(column("SELECT ID FROM Log"), SizeIs(kHeldByTheFile + 1));
}

} // namespace
} // namespace jet::test
