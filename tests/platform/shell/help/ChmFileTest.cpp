// SPDX-FileCopyrightText: 2026 The qmClient authors
// SPDX-License-Identifier: GPL-3.0-or-later
#include "platform/shell/help/ChmFile.h"

#include "tests/platform/shell/help/HelpFiles.h"

#include <algorithm>

namespace shell::help {
namespace {

using ChmFileTest = HelpFiles;

TEST_F(ChmFileTest, ReadsObjectsAsTheyWere) {
    const QByteArray bytes = page("Wählen", QByteArray(100'000, 'w'));
    const auto file =
        ChmFile::open(compile({{QStringLiteral("a.htm"), bytes}, {QStringLiteral("de/b.htm"), page("b")}}));
    ASSERT_TRUE(file);
    EXPECT_EQ(file->read(QStringLiteral("/a.htm")), bytes);
    EXPECT_EQ(file->read(QStringLiteral("/de/b.htm")), page("b"));
}

TEST_F(ChmFileTest, ComparesNamesWithoutCase) {
    const auto file = ChmFile::open(compile({{QStringLiteral("Page.htm"), "text"}}));
    ASSERT_TRUE(file);
    EXPECT_EQ(file->read(QStringLiteral("/pAGE.HTM")), QByteArray("text"));
}

TEST_F(ChmFileTest, HasNothingUnderOtherNames) {
    const auto file = ChmFile::open(compile({{QStringLiteral("a.htm"), "text"}}));
    ASSERT_TRUE(file);
    EXPECT_FALSE(file->read(QStringLiteral("/b.htm")));
    EXPECT_FALSE(file->read(QStringLiteral("a.htm")));
    EXPECT_FALSE(file->read(QString()));
    EXPECT_FALSE(file->read(u'/' + QString(100'000, u'a')));
}

TEST_F(ChmFileTest, RefusesAnObjectThatIsTooLarge) {
    const auto largest = static_cast<qsizetype>(ChmFile::kLargestObject);
    const auto file =
        ChmFile::open(compile({{QStringLiteral("fits.htm"), QByteArray(largest, 'x')},
                               {QStringLiteral("toolarge.htm"), QByteArray(largest + 1, 'x')}}));
    ASSERT_TRUE(file);
    EXPECT_TRUE(file->read(QStringLiteral("/fits.htm")));
    EXPECT_FALSE(file->read(QStringLiteral("/toolarge.htm")));
}

TEST_F(ChmFileTest, ListsTheFiles) {
    const auto file =
        ChmFile::open(compile({{QStringLiteral("a.htm"), "a"}, {QStringLiteral("de/b.htm"), "b"}}));
    ASSERT_TRUE(file);
    const auto paths = file->paths();
    EXPECT_EQ(std::count(paths.begin(), paths.end(), QStringLiteral("/a.htm")), 1);
    EXPECT_EQ(std::count(paths.begin(), paths.end(), QStringLiteral("/de/b.htm")), 1);
    EXPECT_EQ(std::count(paths.begin(), paths.end(), QStringLiteral("/de/")), 0);
}

TEST_F(ChmFileTest, RefusesBytesThatAreNoHelpFile) {
    EXPECT_FALSE(ChmFile::open({}));
    EXPECT_FALSE(ChmFile::open(QByteArray(5000, 'x')));
}

} // namespace
} // namespace shell::help
