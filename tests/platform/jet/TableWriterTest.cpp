// SPDX-FileCopyrightText: 2026 The qmClient authors
// SPDX-License-Identifier: GPL-3.0-or-later
#include "platform/jet/TableWriter.h"

#include "platform/basic/RuntimeError.h"
#include "platform/share/MemoryFile.h"
#include "tests/platform/basic/ErrorOf.h"
#include "tests/platform/jet/WrittenDatabase.h"
#include "tools/demo/CallLogTable.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <algorithm>
#include <set>

namespace jet {
namespace {

using namespace test;
using basic::Null;
using testing::HasSubstr;

Values call(const std::string& id, const basic::Variant& name = Null{},
            const basic::Variant& details = Null{}) {
    return {Null{}, id, basic::Date{46000.25}, std::string("+49301234"), name, std::int32_t{7}, details};
}

class TableWriterTest : public testing::Test {
protected:
    WrittenDatabase m_database;
};

class CallLogWriter : public TableWriterTest {
protected:
    CallLogWriter() { m_database.createTable(demo::callLogTable()); }
};

TEST_F(CallLogWriter, EmptyTableReadsEmpty) {
    EXPECT_TRUE(m_database.rows("CallLog").empty());
    EXPECT_EQ(m_database.tool("mdb-count", "", "CallLog"), "0\n");
    EXPECT_EQ(m_database.json("CallLog"), "");
    EXPECT_NO_THROW(checkDatabase(m_database.file()));
}

TEST_F(CallLogWriter, HandsOutAscendingNumbers) {
    TableWriter writer(m_database.file(), "CallLog");
    EXPECT_EQ(writer.insert(call("A1")), 1);
    EXPECT_EQ(writer.insert(call("A2")), 2);
    writer.flush();
    TableWriter later(m_database.file(), "CallLog");
    EXPECT_EQ(later.insert(call("A3")), 3);
}

TEST_F(CallLogWriter, NumberGivenByTheCallerMovesTheNextOne) {
    TableWriter writer(m_database.file(), "CallLog");
    Values row = call("A1");
    row[0] = std::int32_t{41};
    EXPECT_EQ(writer.insert(row), 41);
    EXPECT_EQ(writer.insert(call("A2")), 42);
}

TEST_F(CallLogWriter, WritesNothingBeforeFlush) {
    TableWriter writer(m_database.file(), "CallLog");
    writer.insert(call("A1"));
    EXPECT_TRUE(m_database.rows("CallLog").empty());
    EXPECT_EQ(storedCount(m_database.file(), "CallLog"), 0U);
    writer.flush();
    EXPECT_EQ(m_database.rows("CallLog").size(), 1U);
    EXPECT_EQ(storedCount(m_database.file(), "CallLog"), 1U);
}

TEST_F(CallLogWriter, RefusesASecondRowOfTheSameCallWithoutCase) {
    m_database.insert("CallLog", {call("Ab1")});
    TableWriter writer(m_database.file(), "CallLog");
    EXPECT_EQ(basic::errorOf([&] { writer.insert(call("aB1")); }), basic::kProviderIntegrity);
    EXPECT_EQ(writer.insert(call("Ab2")), 2) << "a refused row takes no number and leaves the writer usable";
    writer.flush();
    EXPECT_EQ(m_database.rows("CallLog").size(), 2U);
    EXPECT_NO_THROW(checkDatabase(m_database.file()));
}

TEST_F(CallLogWriter, RefusesAnIndexedTextWhoseKeyIsNotKnown) {
    TableWriter writer(m_database.file(), "CallLog");
    EXPECT_EQ(basic::errorOf([&] { writer.insert(call("Äpfel")); }), basic::kProviderFailure);
    writer.insert(call("Apfel"));
    EXPECT_NO_THROW(writer.flush());
}

TEST_F(CallLogWriter, UniqueIndexTakesAnyNumberOfNulls) {
    Values row = call("x");
    row[1] = Null{};
    m_database.insert("CallLog", {row, row, row});
    EXPECT_EQ(m_database.rows("CallLog").size(), 3U);
    EXPECT_NO_THROW(checkDatabase(m_database.file()));
}

TEST_F(CallLogWriter, RefusesARowOfTheWrongLength) {
    TableWriter writer(m_database.file(), "CallLog");
    EXPECT_EQ(basic::errorOf([&] { writer.insert(Values{Null{}}); }), basic::kInvalidProcedureCall);
}

TEST_F(CallLogWriter, RefusesTextThatIsTooLongForItsColumn) {
    TableWriter writer(m_database.file(), "CallLog");
    EXPECT_EQ(basic::errorOf([&] { writer.insert(call(std::string(51, 'A'))); }), basic::kProviderFailure);
    EXPECT_NO_THROW(writer.insert(call(std::string(50, 'A'))));
}

TEST_F(CallLogWriter, UnknownTableIsRefused) {
    EXPECT_EQ(basic::errorOf([&] { TableWriter(m_database.file(), "Calls"); }), basic::kProviderNoTable);
}

TEST_F(CallLogWriter, DatabaseThatIsBeingWrittenIsRefused) {
    m_database.file().write(format::commitWords::kOffset + 4, std::vector<std::byte>(2));
    EXPECT_EQ(basic::errorOf([&] { TableWriter(m_database.file(), "CallLog"); }), basic::kProviderFailure);
}

TEST_F(CallLogWriter, TextsOfEveryScriptReadBackAndAreTheSameToOtherPrograms) {
    const std::vector<std::string> names{"Jürgen Müßig",
                                         "山田太郎",
                                         "Zoë 😀 Smith",
                                         "O'Neil",
                                         "tab\tand \"quotes\"",
                                         "",
                                         "line\nfeed",
                                         " ",
                                         "ab",
                                         std::string(255, 'x'),
                                         "Łódź",
                                         "mixed é 漢"};
    std::vector<Values> rows;
    for (std::size_t i = 0; i < names.size(); ++i)
        rows.push_back(call("C" + std::to_string(i), names[i]));
    m_database.insert("CallLog", rows);
    const std::vector<Values> read = m_database.rows("CallLog");
    ASSERT_EQ(read.size(), names.size());
    for (std::size_t i = 0; i < names.size(); ++i)
        EXPECT_EQ(std::get<std::string>(read[i][4]), names[i]);
    const std::string json = m_database.json("CallLog");
    EXPECT_THAT(json, HasSubstr("\"CallerName\":\"Jürgen Müßig\""));
    EXPECT_THAT(json, HasSubstr("\"CallerName\":\"山田太郎\""));
    // mdbtools shows each half of a character beyond the basic plane as a question mark.
    EXPECT_THAT(json, HasSubstr("\"CallerName\":\"Zoë ?? Smith\""));
    EXPECT_THAT(json, HasSubstr("\"CallerName\":\"" + std::string(255, 'x') + "\""));
    EXPECT_THAT(json, HasSubstr("\"CallerName\":\"mixed é 漢\""));
    EXPECT_NO_THROW(checkDatabase(m_database.file()));
}

// One value for each way a long value is stored, and both sides of each border.
TEST_F(CallLogWriter, MemosOfEveryFormReadBackAndAreTheSameToOtherPrograms) {
    const std::vector<std::size_t> sizes{0,    1,    31,   62,   63,   64,    65,
                                         1024, 1025, 2038, 2039, 4000, 50000, 100000};
    std::vector<Values> rows;
    for (const std::size_t size : sizes) {
        std::string memo;
        for (std::size_t i = 0; i < size; ++i)
            memo += static_cast<char>('a' + (i * 7 + size) % 26);
        rows.push_back(call("M" + std::to_string(size), Null{}, memo));
    }
    m_database.insert("CallLog", rows);
    const std::vector<Values> read = m_database.rows("CallLog");
    const std::string json = m_database.json("CallLog");
    ASSERT_EQ(read.size(), rows.size());
    for (std::size_t i = 0; i < rows.size(); ++i) {
        EXPECT_EQ(read[i][6], rows[i][6]);
        const std::string shown = "\"CallDetails\":\"" + std::get<std::string>(rows[i][6]) + "\"";
        EXPECT_TRUE(sizes[i] == 0 || json.find(shown) != std::string::npos) << sizes[i]; // "" is left out
    }
    EXPECT_NO_THROW(checkDatabase(m_database.file()));
}

TEST_F(CallLogWriter, TenThousandRowsInSeveralStatementsAreAllThere) {
    constexpr int kRows = 10000;
    TableWriter writer(m_database.file(), "CallLog");
    for (int i = 1; i <= kRows; ++i) {
        // The keys of the second index come in no order.
        writer.insert(call("K" + std::to_string(i * 7919 % 100003), "Name " + std::to_string(i),
                           std::string(static_cast<std::size_t>(i % 200), 'm')));
        if (i % 3000 == 0)
            writer.flush();
    }
    writer.flush();
    EXPECT_EQ(m_database.tool("mdb-count", "", "CallLog"), "10000\n");
    const std::vector<Values> read = m_database.rows("CallLog");
    ASSERT_EQ(read.size(), static_cast<std::size_t>(kRows));
    std::set<std::int32_t> numbers;
    for (const Values& row : read) {
        const std::int32_t number = std::get<std::int32_t>(row[0]);
        numbers.insert(number);
        ASSERT_EQ(std::get<std::string>(row[1]), "K" + std::to_string(number * 7919 % 100003));
        ASSERT_EQ(std::get<std::string>(row[6]).size(), static_cast<std::size_t>(number % 200));
    }
    EXPECT_EQ(numbers.size(), static_cast<std::size_t>(kRows));
    const std::string json = m_database.json("CallLog");
    EXPECT_EQ(std::ranges::count(json, '\n'), kRows);
    EXPECT_NO_THROW(checkDatabase(m_database.file()));
}

} // namespace
} // namespace jet
