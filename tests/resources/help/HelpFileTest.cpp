// SPDX-FileCopyrightText: 2026 The qmClient authors
// SPDX-License-Identifier: GPL-3.0-or-later
// The help file as the build made it, beside the programs.

#include "platform/shell/help/ChmFile.h"
#include "platform/shell/help/HelpBook.h"
#include "platform/shell/help/SealedFile.h"
#include "resources/StringTable.h"

#include <QDir>
#include <QFile>
#include <QRegularExpression>
#include <QTextDocument>

#include <gtest/gtest.h>

#include <algorithm>
#include <map>
#include <ostream>
#include <set>

namespace shell::help {
namespace {

QString source(const QString& name) {
    QFile file(QStringLiteral(QM_HELP_SOURCES "/") + name);
    return file.open(QIODevice::ReadOnly) ? QString::fromUtf8(file.readAll()) : QString();
}

QStringList namesIn(const QString& folder, const QString& pattern) {
    return QDir(QStringLiteral(QM_HELP_SOURCES "/") + folder).entryList({pattern}, QDir::Files, QDir::Name);
}

QStringList allMatches(const QString& text, const char* pattern) {
    QStringList found;
    auto matches = QRegularExpression(QString::fromLatin1(pattern)).globalMatch(text);
    while (matches.hasNext())
        found += matches.next().captured(1);
    return found;
}

QString textOf(const QString& html) {
    QTextDocument document;
    document.setHtml(html);
    return document.toPlainText().simplified();
}

// Each language with its folder of the sources and of the file.
struct Language {
    const char* sources;
    const char* folder;
    resources::Language language;

    friend void PrintTo(const Language& printed, std::ostream* out) { *out << printed.sources; }
};

class HelpFileTest : public testing::TestWithParam<Language> {
protected:
    void SetUp() override {
        book = HelpBook::open(QStringLiteral(QM_HELP_FILE), {QString::fromLatin1(GetParam().folder),
                                                             QStringLiteral("Client_Contents.hhc")});
        ASSERT_TRUE(book);
        resources::setLanguage(GetParam().language);
    }
    void TearDown() override { resources::setLanguage(resources::Language::English); }

    QString folder() const { return QString::fromLatin1(GetParam().sources); }
    QStringList pages() const { return namesIn(folder(), QStringLiteral("*.htm")); }
    QString page(const QString& name) const {
        return QString::fromUtf8(book->read(book->find(name)).value_or(QByteArray()));
    }

    std::unique_ptr<HelpBook> book;
};

INSTANTIATE_TEST_SUITE_P(Languages, HelpFileTest,
                         testing::Values(Language{"en", "", resources::Language::English},
                                         Language{"de", "de", resources::Language::German}),
                         [](const auto& language) { return std::string(language.param.sources); });

TEST_P(HelpFileTest, HasEveryPageAsItWasWritten) {
    ASSERT_FALSE(pages().isEmpty());
    for (const QString& name : pages())
        EXPECT_EQ(page(name), source(folder() + u'/' + name)) << qPrintable(name);
}

TEST_P(HelpFileTest, HasTheWelcomePageThatTheProgramOpens) {
    EXPECT_TRUE(pages().contains(QStringLiteral("Client_Welcome.htm")));
}

TEST_P(HelpFileTest, TheContentsListEveryPageOnceUnderItsTitle) {
    QStringList listed;
    for (const HelpTopic& topic : book->topics()) {
        listed += topic.page;
        EXPECT_EQ(allMatches(page(topic.page), "<title>(.*)</title>"), QStringList{topic.title});
        EXPECT_EQ(allMatches(page(topic.page), "<h1>(.*)</h1>"), QStringList{topic.title});
    }
    EXPECT_EQ(listed.value(0), QStringLiteral("Client_Welcome.htm"));
    listed.sort();
    EXPECT_EQ(listed, pages());
}

TEST_P(HelpFileTest, EveryLinkResolves) {
    for (const QString& name : pages()) {
        const QUrl base = book->find(name);
        for (const QString& link : allMatches(page(name), "(?:href|src)=\"([^\"]*)\"")) {
            const QUrl address = base.resolved(QUrl(link));
            if (HelpBook::isInside(address))
                EXPECT_TRUE(book->has(address)) << qPrintable(name + u' ' + link);
            else
                EXPECT_EQ(address.scheme(), QStringLiteral("https")) << qPrintable(name + u' ' + link);
        }
    }
}

TEST_P(HelpFileTest, EveryPageIsReachedByLinksFromTheWelcomePage) {
    std::set<QString> seen{QStringLiteral("Client_Welcome.htm")};
    for (QStringList open{QStringLiteral("Client_Welcome.htm")}; !open.isEmpty();)
        for (const QString& link : allMatches(page(open.takeFirst()), "href=\"(Client_\\w+\\.htm)\""))
            if (seen.insert(link).second)
                open += link;
    EXPECT_EQ(seen.size(), static_cast<std::size_t>(pages().size()));
}

TEST_P(HelpFileTest, EveryPageIsMarkedWithItsLanguage) {
    for (const QString& name : pages())
        EXPECT_EQ(allMatches(page(name), "<html lang=\"(\\w+)\">"), QStringList{folder()})
            << qPrintable(name);
}

// What the user reads in the help must be what he sees in the program.
TEST_P(HelpFileTest, QuotesTheTextsOfTheProgram) {
    const std::map<QString, std::vector<std::int32_t>> quoted{
        {QStringLiteral("FirstSteps"), {138, 3682, 3683, 3684, 3712, 3733, 3754, 3756, 122}},
        {QStringLiteral("List"), {3682, 3689, 3694, 3695, 3696, 3685, 3772, 3722, 3740, 3748, 3760}},
        {QStringLiteral("Play"), {3679, 3706, 3712, 3773, 5019, 5030, 5031, 5032, 5033}},
        {QStringLiteral("Details"), {136, 3712, 3732, 5062}},
        {QStringLiteral("Delete"), {113, 114, 122, 3719, 3740}},
        {QStringLiteral("Options"), {112, 114, 122, 3682, 3684, 3712, 3733, 3754, 3756, 5110}},
        {QStringLiteral("Tray"), {121, 3683, 3684, 3715, 3738, 3745, 3760, 3770}},
        {QStringLiteral("Server"), {114, 122, 3685, 5053}},
        {QStringLiteral("Errors"), {110, 111, 112, 113, 114, 5002, 5003}},
        {QStringLiteral("Keys"), {3682}}};
    for (const auto& [name, ids] : quoted)
        for (const std::int32_t id : ids) {
            QString text = QString::fromStdString(resources::LoadLocalString(id));
            text.remove(u'&');
            EXPECT_TRUE(textOf(page(u"Client_" + name + u".htm")).contains(text))
                << qPrintable(name) << ' ' << id;
        }
}

TEST(HelpFileLanguagesTest, BothLanguagesHaveTheSamePagesInTheSameOrder) {
    const auto english =
        HelpBook::open(QStringLiteral(QM_HELP_FILE), {{}, QStringLiteral("Client_Contents.hhc")});
    const auto german = HelpBook::open(QStringLiteral(QM_HELP_FILE),
                                       {QStringLiteral("de"), QStringLiteral("Client_Contents.hhc")});
    ASSERT_TRUE(english && german);
    ASSERT_EQ(english->topics().size(), german->topics().size());
    for (std::size_t i = 0; i < english->topics().size(); ++i) {
        EXPECT_EQ(english->topics()[i].page, german->topics()[i].page);
        EXPECT_EQ(english->topics()[i].level, german->topics()[i].level);
        EXPECT_NE(english->find(english->topics()[i].page), german->find(german->topics()[i].page));
    }
}

// The same pages give the same file whenever they are compiled.
TEST(HelpFileLanguagesTest, HoldsNoTimeOfItsCompiling) {
    const auto bytes = readSealedFile(QStringLiteral(QM_HELP_FILE), HelpBook::kLargestFile);
    ASSERT_TRUE(bytes);
    EXPECT_EQ(bytes->mid(16, 4), QByteArray(4, '\0'));
    const QByteArray timeEntry("\x0a\0\x04\0\0\0\0\0\x09\0", 10);
    EXPECT_EQ(bytes->count(timeEntry), 1);
}

// The compiler's own comments about itself are not among them.
TEST(HelpFileLanguagesTest, HasNothingButTheSources) {
    const auto bytes = readSealedFile(QStringLiteral(QM_HELP_FILE), HelpBook::kLargestFile);
    ASSERT_TRUE(bytes);
    const auto file = ChmFile::open(*bytes);
    ASSERT_TRUE(file);
    QStringList names;
    for (const QString& path : file->paths())
        if (path != u"/_#_README_#_")
            names += path.mid(1);
    QStringList sources = namesIn(QStringLiteral("en"), QStringLiteral("*"));
    for (const QString& name : namesIn(QStringLiteral("de"), QStringLiteral("*")))
        sources += u"de/" + name;
    names.sort();
    sources.sort();
    EXPECT_EQ(names, sources);
}

} // namespace
} // namespace shell::help
