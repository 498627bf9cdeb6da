// SPDX-FileCopyrightText: 2026 The qmClient authors
// SPDX-License-Identifier: GPL-3.0-or-later
#include "platform/shell/help/HelpContents.h"

#include <gtest/gtest.h>

namespace shell::help {
namespace {

QString entry(const QString& title, const QString& page) {
    return QStringLiteral("<LI><OBJECT type=\"text/sitemap\">\n<param name=\"Name\" value=\"%1\">\n"
                          "<param name=\"Local\" value=\"%2\">\n</OBJECT></LI>\n")
        .arg(title, page);
}

QString numbered(int number) {
    return entry(QString::number(number), QStringLiteral("page.htm"));
}

TEST(HelpContentsTest, ReadsEntriesInTheirOrder) {
    const auto topics = readHelpContents(u"<UL>" + entry(QStringLiteral("One"), QStringLiteral("1.htm")) +
                                         entry(QStringLiteral("Two"), QStringLiteral("2.htm")) + u"</UL>");
    ASSERT_EQ(topics.size(), 2);
    EXPECT_EQ(topics[0].title, QStringLiteral("One"));
    EXPECT_EQ(topics[0].page, QStringLiteral("1.htm"));
    EXPECT_EQ(topics[0].level, 0);
    EXPECT_EQ(topics[1].title, QStringLiteral("Two"));
}

TEST(HelpContentsTest, ListsWithinListsAreLevels) {
    const auto topics = readHelpContents(u"<ul>" + numbered(1) + u"<ul>" + numbered(2) + u"<ul>" +
                                         numbered(3) + u"</ul></ul>" + numbered(4) + u"</ul>");
    ASSERT_EQ(topics.size(), 4);
    EXPECT_EQ(topics[1].level, 1);
    EXPECT_EQ(topics[2].level, 2);
    EXPECT_EQ(topics[3].level, 0);
}

TEST(HelpContentsTest, TitlesMayHoldCharacterReferences) {
    const auto topics = readHelpContents(
        u"<ul>" + entry(QStringLiteral("L&ouml;schen &amp; mehr"), QStringLiteral("1.htm")) + u"</ul>");
    ASSERT_EQ(topics.size(), 1);
    EXPECT_EQ(topics[0].title, QStringLiteral("Löschen & mehr"));
}

TEST(HelpContentsTest, AnEntryWithoutAPageIsAHeading) {
    const auto topics =
        readHelpContents(QStringLiteral("<ul><object><param name=\"Name\" value=\"Part\"></object></ul>"));
    ASSERT_EQ(topics.size(), 1);
    EXPECT_EQ(topics[0].title, QStringLiteral("Part"));
    EXPECT_TRUE(topics[0].page.isEmpty());
}

TEST(HelpContentsTest, PassesOverObjectsWithoutATitle) {
    EXPECT_TRUE(
        readHelpContents(QStringLiteral("<object type=\"text/site properties\"><param name=\"ImageType\" "
                                        "value=\"Folder\"></object>"))
            .empty());
}

TEST(HelpContentsTest, TakesBrokenMarkupAsFarAsItGoes) {
    const auto topics = readHelpContents(u"</ul></ul><param><ul <" + numbered(1) +
                                         u"</object></li><object><param name=\"Name\"");
    ASSERT_EQ(topics.size(), 1);
    EXPECT_EQ(topics[0].level, 0);
}

TEST(HelpContentsTest, CutsLevelsThatNobodyCouldRead) {
    const auto topics = readHelpContents(QStringLiteral("<ul>").repeated(100'000) + numbered(1));
    ASSERT_EQ(topics.size(), 1);
    EXPECT_EQ(topics[0].level, kDeepestLevel);
}

TEST(HelpContentsTest, CutsEntriesThatNobodyCouldRead) {
    EXPECT_EQ(readHelpContents(numbered(1).repeated(kMostTopics + 5)).size(), std::size_t{kMostTopics});
}

} // namespace
} // namespace shell::help
