// SPDX-FileCopyrightText: 2026 The qmClient authors
// SPDX-License-Identifier: GPL-3.0-or-later
#include "platform/jet/sql/Parser.h"

#include "tests/platform/share/ExpectError.h"

#include <gmock/gmock.h>

namespace jet::sql {
namespace {

using ::testing::ElementsAre;

TEST(Parser, ReadsAnInsert) {
    const Statement parsed =
        Parser("INSERT INTO [Call Log] (a, [b c], d, e, f) VALUES (-1, 'it''s', \"q\"\"\", Null, true)")
            .parse();
    const auto& insert = std::get<Insert>(parsed);
    EXPECT_EQ(insert.table, "Call Log");
    EXPECT_THAT(insert.columns, ElementsAre("a", "b c", "d", "e", "f"));
    const std::vector<basic::Variant> expected{std::int32_t{-1}, std::string("it's"), std::string("q\""),
                                               basic::Null(), true};
    EXPECT_EQ(insert.values, expected);
}

TEST(Parser, ReadsADelete) {
    EXPECT_EQ(std::get<Delete>(Parser("DELETE FROM CallLog").parse()).condition, nullptr);
    EXPECT_EQ(std::get<Delete>(Parser("delete * from CallLog;").parse()).table, "CallLog");
    EXPECT_NE(std::get<Delete>(Parser("DELETE FROM t WHERE a=1").parse()).condition, nullptr);
}

class BrokenStatement : public ::testing::TestWithParam<const char*> {};

TEST_P(BrokenStatement, IsASyntaxError) {
    EXPECT_ERROR(basic::kProviderSyntax, Parser(GetParam()).parse());
}

INSTANTIATE_TEST_SUITE_P(
    Texts, BrokenStatement,
    ::testing::Values(
        "", " ", ";", "SELECT", "SELECT *", "SELECT * FROM", "SELECT FROM t", "SELECT * FROM t t2",
        "SELECT * FROM t, u", "SELECT * FROM t WHERE", "SELECT * FROM t WHERE a=", "SELECT a, FROM t",
        "SELECT * FROM t ORDER", "SELECT * FROM t ORDER BY", "SELECT * FROM t ORDER BY 1",
        "SELECT * FROM t ORDER BY a b", "SELECT * FROM t WHERE a LIKE 'x'", "SELECT * FROM t WHERE a=1=2",
        "SELECT * FROM t WHERE (a=1", "SELECT * FROM t WHERE a=1)", "SELECT * FROM t WHERE a IS 1",
        "SELECT LEN(a) FROM t", "SELECT COUNT(a) FROM t", "SELECT a AS FROM t", "SELECT a AS SELECT FROM t",
        "SELECT * FROM []", "SELECT * FROM [t", "SELECT * FROM t WHERE a='x", "SELECT * FROM t WHERE a=\"x",
        "SELECT * FROM t WHERE a=#1/1/2024", "SELECT * FROM t WHERE a=#13/13/2024#",
        "SELECT * FROM t WHERE a=#2/30/2024#", "SELECT * FROM t WHERE a=##", "SELECT * FROM t WHERE a=1e999",
        "SELECT * FROM t WHERE a=-'x'", "SELECT * FROM t WHERE a=1x", "SELECT ! FROM t", "SELECT * FROM t;;",
        "SELECT * FROM t; SELECT", "UPDATE t SET a=1", "DROP TABLE t", "INSERT INTO t VALUES (1)",
        "INSERT INTO t (a) VALUES (1, 2)", "INSERT INTO t (a, b) VALUES (1)", "INSERT INTO t (a) VALUES (b)",
        "INSERT INTO t () VALUES ()", "DELETE CallLog", "DELETE FROM t WHERE", "SELECT * FROM t GROUP BY a"));

std::string descriptionOf(std::string_view statement) {
    try {
        Parser(statement).parse();
    } catch (const basic::RuntimeError& error) {
        return error.description();
    }
    return {};
}

TEST(Parser, SyntaxErrorNamesThePositionAndThePiece) {
    EXPECT_EQ(descriptionOf("SELECT * FORM t"), "Syntax error (FROM is expected) at position 10: FORM t");
    EXPECT_EQ(descriptionOf("SELECT *"), "Syntax error (FROM is expected) at position 9");
    EXPECT_EQ(descriptionOf("SELECT * FROM t WHERE a='it's'"),
              "Syntax error (the end of the statement is expected) at position 29: s'");
}

std::string repeated(std::string_view text, int times) {
    std::string result;
    for (int i = 0; i < times; ++i)
        result += text;
    return result;
}

TEST(Parser, NestingIsBounded) {
    for (const char* opening : {"(", "NOT ", "(NOT ", "a=1 OR ("})
        EXPECT_THAT(descriptionOf("SELECT * FROM t WHERE " + repeated(opening, 5'000)),
                    ::testing::HasSubstr("nested too deeply"))
            << opening;
    for (const char* more : {" & a", " AND a", " OR a"})
        EXPECT_THAT(descriptionOf("SELECT * FROM t WHERE a" + repeated(more, 5'000)),
                    ::testing::HasSubstr("too complex"))
            << more;
}

TEST(Parser, ReasonableNestingIsTaken) {
    EXPECT_EQ(descriptionOf("SELECT * FROM t WHERE " + repeated("(", 40) + "a=1" + repeated(")", 40)), "");
    EXPECT_EQ(descriptionOf("SELECT a" + repeated(" & a", 90) + " FROM t"), "");
}

TEST(Parser, LengthAndListsAreBounded) {
    EXPECT_THAT(descriptionOf("SELECT * FROM t" + std::string(70'000, ' ')),
                ::testing::HasSubstr("too long"));
    EXPECT_THAT(descriptionOf("SELECT a" + repeated(",a", 300) + " FROM t"),
                ::testing::HasSubstr("too many"));
}

TEST(Parser, EveryBeginningOfAStatementEndsInASyntaxErrorOrAStatement) {
    const std::string statement =
        "SELECT *, a & 'x' AS b FROM [t] WHERE (a=#1/2/2024 3:04 PM# AND b IS NOT NULL) ORDER BY a DESC, b";
    for (std::size_t length = 0; length <= statement.size(); ++length) {
        try {
            Parser(std::string_view(statement).substr(0, length)).parse();
            EXPECT_GE(length, statement.find(']')) << length;
        } catch (const basic::RuntimeError& error) {
            EXPECT_EQ(error.number(), basic::kProviderSyntax) << length;
            EXPECT_LT(length, statement.size());
        }
    }
}

} // namespace
} // namespace jet::sql
