// SPDX-FileCopyrightText: 2026 The qmClient authors
// SPDX-License-Identifier: GPL-3.0-or-later
#include "platform/shell/help/HelpSearch.h"

#include "tests/platform/shell/help/HelpFiles.h"

namespace shell::help {
namespace {

using Found = std::vector<std::size_t>;

class HelpSearchTest : public HelpFiles {
protected:
    HelpSearchTest() {
        const QByteArray contents = "<UL>" + entry("Playing messages", "a.htm") + entry("Heading", "") +
                                    entry("The list", "b.htm") + entry("Löschen", "c.htm") +
                                    entry("Again", "a.htm") + "</UL>";
        m_book =
            HelpBook::open(helpFile({{QStringLiteral("Contents.hhc"), contents},
                                     {QStringLiteral("a.htm"), page("Playing", "double click &amp; listen")},
                                     {QStringLiteral("b.htm"), page("List", "messages of <b>callers</b>")},
                                     {QStringLiteral("c.htm"), page("Löschen", "größer")}}),
                           {{}, QStringLiteral("Contents.hhc")});
    }

    Found find(const QString& query) const { return HelpSearch(*m_book).find(query); }

    std::unique_ptr<HelpBook> m_book;
};

TEST_F(HelpSearchTest, FindsPagesByPartsOfWordsWithoutCase) {
    EXPECT_EQ(find(QStringLiteral("CALLER")), (Found{2}));
    EXPECT_EQ(find(QStringLiteral("ick & lis")), (Found{0}));
    EXPECT_EQ(find(QStringLiteral("GRÖSS")), Found{});
    EXPECT_EQ(find(QStringLiteral("GRÖß")), (Found{3}));
}

TEST_F(HelpSearchTest, FindsTitlesFirst) {
    EXPECT_EQ(find(QStringLiteral("messages")), (Found{0, 2}));
    EXPECT_EQ(find(QStringLiteral("li")), (Found{2, 0}));
}

TEST_F(HelpSearchTest, AllWordsMustBeThere) {
    EXPECT_EQ(find(QStringLiteral("  messages \t callers ")), (Found{2}));
    EXPECT_EQ(find(QStringLiteral("messages nothing")), Found{});
}

TEST_F(HelpSearchTest, MarkupIsNotSearched) {
    EXPECT_EQ(find(QStringLiteral("body")), Found{});
}

TEST_F(HelpSearchTest, NoWordFindsNothing) {
    EXPECT_EQ(find(QStringLiteral("  ")), Found{});
}

TEST_F(HelpSearchTest, APageListedTwiceIsFoundOnce) {
    EXPECT_EQ(find(QStringLiteral("listen")), (Found{0}));
}

} // namespace
} // namespace shell::help
