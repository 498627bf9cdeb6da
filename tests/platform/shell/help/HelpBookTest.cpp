// SPDX-FileCopyrightText: 2026 The qmClient authors
// SPDX-License-Identifier: GPL-3.0-or-later
#include "platform/shell/help/HelpBook.h"

#include "tests/platform/shell/help/HelpFiles.h"

namespace shell::help {
namespace {

class HelpBookTest : public HelpFiles {
protected:
    static std::unique_ptr<HelpBook> open(const QString& path, const QString& language = {}) {
        return HelpBook::open(path, {language, QStringLiteral("Contents.hhc")});
    }

    static QByteArray contents(const QByteArray& entries) { return "<UL>\n" + entries + "</UL>\n"; }

    const Pages m_pages{
        {QStringLiteral("One.htm"), page("One")},
        {QStringLiteral("Two.htm"), page("Two")},
        {QStringLiteral("Contents.hhc"), contents(entry("One", "One.htm") + entry("Two", "Two.htm"))},
        {QStringLiteral("de/One.htm"), page("Eins")},
        {QStringLiteral("de/Contents.hhc"), contents(entry("Eins", "One.htm"))}};
};

TEST_F(HelpBookTest, TakesPagesAndContentsOfItsLanguage) {
    const QString path = helpFile(m_pages);
    const auto english = open(path);
    const auto german = open(path, QStringLiteral("de"));
    ASSERT_TRUE(english && german);
    EXPECT_EQ(english->read(english->find(QStringLiteral("One.htm"))), page("One"));
    EXPECT_EQ(german->read(german->find(QStringLiteral("One.htm"))), page("Eins"));
    EXPECT_EQ(english->topics().size(), 2);
    ASSERT_EQ(german->topics().size(), 1);
    EXPECT_EQ(german->topics()[0].title, QStringLiteral("Eins"));
}

TEST_F(HelpBookTest, APageThatIsNotTranslatedIsTheFilesOwn) {
    const auto german = open(helpFile(m_pages), QStringLiteral("de"));
    ASSERT_TRUE(german);
    EXPECT_EQ(german->read(german->find(QStringLiteral("Two.htm"))), page("Two"));
}

TEST_F(HelpBookTest, ALanguageThatIsNotThereGivesTheFilesOwn) {
    const auto french = open(helpFile(m_pages), QStringLiteral("fr"));
    ASSERT_TRUE(french);
    EXPECT_EQ(french->read(french->find(QStringLiteral("One.htm"))), page("One"));
    EXPECT_EQ(french->topics().size(), 2);
}

TEST_F(HelpBookTest, APageThatIsNotThereHasNoAddress) {
    const auto book = open(helpFile(m_pages));
    ASSERT_TRUE(book);
    EXPECT_FALSE(book->find(QStringLiteral("Three.htm")).isValid());
    EXPECT_FALSE(book->has(QUrl()));
}

TEST_F(HelpBookTest, ReadsNothingOutsideOfTheFile) {
    const auto book = open(helpFile(m_pages));
    ASSERT_TRUE(book);
    write(QStringLiteral("One.htm"), "secret");
    for (const QString& address :
         {QStringLiteral("file:///One.htm"), QStringLiteral("http://srv01/One.htm"),
          QStringLiteral("help://srv01/One.htm"), QStringLiteral("/One.htm"), QStringLiteral("One.htm"),
          QString(QStringLiteral("file://") + m_folder.filePath(QStringLiteral("One.htm")))})
        EXPECT_FALSE(book->has(QUrl(address))) << qPrintable(address);
    EXPECT_TRUE(book->has(QUrl(QStringLiteral("help:/One.htm"))));
}

TEST_F(HelpBookTest, AFileWithoutContentsIsStillABook) {
    const auto book = open(helpFile({{QStringLiteral("One.htm"), page("One")}}));
    ASSERT_TRUE(book);
    EXPECT_TRUE(book->topics().empty());
}

TEST_F(HelpBookTest, AMissingFileIsNoBook) {
    EXPECT_FALSE(open(m_folder.filePath(QStringLiteral("missing.chm"))));
}

TEST_F(HelpBookTest, ASealedFileThatIsNoHelpFileIsNoBook) {
    EXPECT_FALSE(open(write(QStringLiteral("other.chm"), sealed("something else"))));
}

TEST_F(HelpBookTest, ACutFileIsNoBook) {
    const QByteArray whole = sealed(compile(m_pages));
    for (qsizetype length = 0; length < whole.size(); length += 61)
        EXPECT_FALSE(open(write(QStringLiteral("cut.chm"), whole.left(length)))) << length;
}

// The decoder itself dies of many of these.
TEST_F(HelpBookTest, AFileWithAChangedByteIsNoBook) {
    const QByteArray whole = sealed(compile(m_pages));
    for (qsizetype at = 0; at < whole.size(); at += 17) {
        QByteArray changed = whole;
        changed[at] = static_cast<char>(~changed[at]);
        EXPECT_FALSE(open(write(QStringLiteral("changed.chm"), changed))) << at;
    }
}

} // namespace
} // namespace shell::help
