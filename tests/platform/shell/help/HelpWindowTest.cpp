// SPDX-FileCopyrightText: 2026 The qmClient authors
// SPDX-License-Identifier: GPL-3.0-or-later
#include "platform/shell/help/HelpWindow.h"

#include "platform/shell/help/HelpBrowser.h"
#include "platform/shell/help/HelpNavigation.h"
#include "tests/platform/shell/help/HelpFiles.h"

#include <QAction>
#include <QLineEdit>
#include <QListWidget>
#include <QStackedWidget>
#include <QTest>
#include <QTextBlock>
#include <QTreeWidget>

namespace shell::help {
namespace {

class HelpWindowTest : public HelpFiles {
protected:
    void SetUp() override {
        const QByteArray contents = "<UL>" + entry("Welcome", "Welcome.htm") + entry("The list", "List.htm") +
                                    "<UL>" + entry("Playing", "Play.htm") + "</UL>" +
                                    entry("Errors", "Errors.htm") + "</UL>";
        const std::shared_ptr<const HelpBook> book =
            HelpBook::open(helpFile({{QStringLiteral("Contents.hhc"), contents},
                                     {QStringLiteral("Welcome.htm"),
                                      page("Welcome", "<a href=\"https://www.corvantis.example/\">x</a>")},
                                     {QStringLiteral("List.htm"), page("List", "<p>about messages</p>")},
                                     {QStringLiteral("Play.htm"), page("Play", "<p>of messages</p>")},
                                     {QStringLiteral("Errors.htm"), page("Errors")}}),
                           {{}, QStringLiteral("Contents.hhc")});
        ASSERT_TRUE(book);
        m_window.open(book, QStringLiteral("Welcome.htm"));
        m_window.show();
        m_window.activateWindow();
        ASSERT_TRUE(QTest::qWaitForWindowActive(&m_window));
    }

    template <typename Control>
    Control& control(const char* name) {
        return *m_window.findChild<Control*>(QString::fromLatin1(name));
    }
    HelpBrowser& browser() { return control<HelpBrowser>("txtPage"); }
    QTreeWidget& contents() { return control<QTreeWidget>("tvContents"); }
    QListWidget& found() { return control<QListWidget>("lsFound"); }
    QLineEdit& searchField() { return control<QLineEdit>("txtSearch"); }
    QAction& action(const char* name) { return control<QAction>(name); }
    QString heading() { return browser().document()->firstBlock().text(); }
    QString current() { return contents().currentItem() ? contents().currentItem()->text(0) : QString(); }
    QTreeWidgetItem* topic(const QString& title) {
        return contents().findItems(title, Qt::MatchExactly | Qt::MatchRecursive).value(0);
    }
    void choose(const QString& title) {
        QTest::mouseClick(contents().viewport(), Qt::LeftButton, {},
                          contents().visualItemRect(topic(title)).center());
    }
    QStringList foundTitles() {
        QStringList titles;
        for (int row = 0; row < found().count(); ++row)
            titles += found().item(row)->text();
        return titles;
    }

    std::vector<QUrl> m_opened;
    int m_printed = 0;
    HelpWindow m_window{{.texts = {.title = QStringLiteral("Help"),
                                   .contents = QStringLiteral("Contents"),
                                   .search = QStringLiteral("Search"),
                                   .found = QStringLiteral("Pages found"),
                                   .nothingFound = QStringLiteral("Nothing found"),
                                   .back = QStringLiteral("Back"),
                                   .forward = QStringLiteral("Forward"),
                                   .start = QStringLiteral("Start"),
                                   .print = QStringLiteral("Print")},
                         .icons = {},
                         .openOutside = [this](const QUrl& address) { m_opened.push_back(address); },
                         .print = [this](const QTextDocument&, QWidget&) { ++m_printed; }}};
};

TEST_F(HelpWindowTest, OpensAtTheTopicAskedFor) {
    EXPECT_EQ(heading(), QStringLiteral("Welcome"));
    EXPECT_EQ(m_window.windowTitle(), QStringLiteral("Help"));
    EXPECT_FALSE(action("miBack").isEnabled());
    EXPECT_FALSE(action("miForward").isEnabled());
}

TEST_F(HelpWindowTest, TheSearchFieldsHintIsReadableOnLightAndDark) {
    const auto hintOn = [this](const QColor& text) {
        QPalette colours;
        colours.setColor(QPalette::Text, text);
        colours.setColor(QPalette::PlaceholderText, Qt::black); // as a theme leaves it that names none
        m_window.setPalette(colours);
        return searchField().palette().color(QPalette::PlaceholderText);
    };
    for (const QColor& text : {QColor(Qt::white), QColor(Qt::black), QColor(Qt::yellow)}) {
        const QColor hint = hintOn(text);
        EXPECT_EQ(hint.rgb(), text.rgb());
        EXPECT_LT(hint.alpha(), 255);
    }
}

TEST_F(HelpWindowTest, ShowsTheContentsAsATree) {
    EXPECT_EQ(contents().topLevelItemCount(), 3);
    ASSERT_EQ(topic(QStringLiteral("The list"))->childCount(), 1);
    EXPECT_EQ(topic(QStringLiteral("The list"))->child(0)->text(0), QStringLiteral("Playing"));
    EXPECT_TRUE(topic(QStringLiteral("The list"))->isExpanded());
}

TEST_F(HelpWindowTest, AClickInTheContentsShowsThePage) {
    choose(QStringLiteral("Playing"));
    EXPECT_EQ(heading(), QStringLiteral("Play"));
}

TEST_F(HelpWindowTest, KeysInTheContentsShowPages) {
    contents().setFocus();
    QTest::keyClick(&contents(), Qt::Key_Down);
    EXPECT_EQ(heading(), QStringLiteral("List"));
}

TEST_F(HelpWindowTest, TheContentsFollowThePage) {
    EXPECT_EQ(current(), QStringLiteral("Welcome"));
    browser().showPage(QUrl(QStringLiteral("help:/Play.htm#place")));
    EXPECT_EQ(current(), QStringLiteral("Playing"));
    EXPECT_EQ(heading(), QStringLiteral("Play"));
}

TEST_F(HelpWindowTest, GoesBackAndForwardAndToTheFirstPage) {
    choose(QStringLiteral("The list"));
    choose(QStringLiteral("Errors"));
    EXPECT_TRUE(action("miBack").isEnabled());
    QTest::keyClick(&m_window, Qt::Key_Left, Qt::AltModifier);
    EXPECT_EQ(heading(), QStringLiteral("List"));
    EXPECT_EQ(current(), QStringLiteral("The list"));
    EXPECT_TRUE(action("miForward").isEnabled());
    QTest::keyClick(&m_window, Qt::Key_Right, Qt::AltModifier);
    EXPECT_EQ(heading(), QStringLiteral("Errors"));
    EXPECT_FALSE(action("miForward").isEnabled());
    QTest::keyClick(&m_window, Qt::Key_Home, Qt::AltModifier);
    EXPECT_EQ(heading(), QStringLiteral("Welcome"));
}

TEST_F(HelpWindowTest, TypingFindsPagesAndTheEmptiedFieldBringsTheContentsBack) {
    QTest::keyClick(&m_window, Qt::Key_F, Qt::ControlModifier);
    EXPECT_TRUE(searchField().hasFocus());
    QTest::keyClicks(&searchField(), QStringLiteral("messages"));
    EXPECT_TRUE(found().isVisible());
    EXPECT_FALSE(contents().isVisible());
    EXPECT_EQ(foundTitles(), (QStringList{QStringLiteral("The list"), QStringLiteral("Playing")}));
    searchField().clear();
    EXPECT_TRUE(contents().isVisible());
    EXPECT_EQ(heading(), QStringLiteral("Welcome"));
}

TEST_F(HelpWindowTest, ReturnShowsTheFirstPageFoundWithItsWordsMarked) {
    QTest::keyClicks(&searchField(), QStringLiteral("of mess"));
    QTest::keyClick(&searchField(), Qt::Key_Return);
    EXPECT_EQ(heading(), QStringLiteral("Play"));
    EXPECT_EQ(browser().extraSelections().size(), 2);
}

TEST_F(HelpWindowTest, KeysAndClicksChooseAmongThePagesFound) {
    QTest::keyClicks(&searchField(), QStringLiteral("messages"));
    QTest::keyClick(&searchField(), Qt::Key_Down);
    EXPECT_TRUE(found().hasFocus());
    QTest::keyClick(&found(), Qt::Key_Down);
    QTest::keyClick(&found(), Qt::Key_Return);
    EXPECT_EQ(heading(), QStringLiteral("Play"));
    QTest::mouseClick(found().viewport(), Qt::LeftButton, {},
                      found().visualItemRect(found().item(0)).center());
    EXPECT_EQ(heading(), QStringLiteral("List"));
}

TEST_F(HelpWindowTest, SaysWhenNothingIsFound) {
    QTest::keyClicks(&searchField(), QStringLiteral("xyzzy"));
    EXPECT_EQ(foundTitles(), QStringList{QStringLiteral("Nothing found")});
    QTest::keyClick(&searchField(), Qt::Key_Return);
    QTest::mouseClick(found().viewport(), Qt::LeftButton, {},
                      found().visualItemRect(found().item(0)).center());
    EXPECT_EQ(heading(), QStringLiteral("Welcome"));
}

TEST_F(HelpWindowTest, PrintsThePage) {
    QTest::keyClick(&m_window, Qt::Key_P, Qt::ControlModifier);
    EXPECT_EQ(m_printed, 1);
}

TEST_F(HelpWindowTest, ALinkOutOfTheFileGoesToOtherPrograms) {
    EXPECT_TRUE(m_opened.empty());
    QTest::keyClick(&browser(), Qt::Key_Tab);
    QTest::keyClick(&browser(), Qt::Key_Return);
    EXPECT_EQ(m_opened, std::vector<QUrl>{QUrl(QStringLiteral("https://www.corvantis.example/"))});
}

TEST_F(HelpWindowTest, EscapeClosesIt) {
    QTest::keyClick(&m_window, Qt::Key_Escape);
    EXPECT_FALSE(m_window.isVisible());
}

TEST_F(HelpWindowTest, EveryControlHasANameForThoseWhoCannotSeeIt) {
    EXPECT_EQ(searchField().accessibleName(), QStringLiteral("Search"));
    EXPECT_EQ(contents().accessibleName(), QStringLiteral("Contents"));
    EXPECT_EQ(found().accessibleName(), QStringLiteral("Pages found"));
    EXPECT_EQ(browser().accessibleName(), QStringLiteral("Welcome"));
}

} // namespace
} // namespace shell::help
