// SPDX-FileCopyrightText: 2026 The qmClient authors
// SPDX-License-Identifier: GPL-3.0-or-later
#include "platform/shell/help/HelpBrowser.h"

#include "tests/platform/shell/help/HelpFiles.h"

#include <QAbstractTextDocumentLayout>
#include <QImage>
#include <QScrollBar>
#include <QSignalSpy>
#include <QTest>
#include <QTextBlock>

namespace shell::help {
namespace {

class HelpBrowserTest : public HelpFiles {
protected:
    void show(const QByteArray& body, Pages further = {}) {
        further[QStringLiteral("Start.htm")] = page("Start", body);
        further[QStringLiteral("Other.htm")] = page("Other");
        m_book = HelpBook::open(helpFile(further), {});
        ASSERT_TRUE(m_book);
        m_browser.resize(600, 400);
        m_browser.setBook(m_book);
        m_browser.showPage(m_book->find(QStringLiteral("Start.htm")));
        m_browser.show();
        ASSERT_TRUE(QTest::qWaitForWindowExposed(&m_browser));
    }

    QString heading() const { return m_browser.document()->firstBlock().text(); }

    // In the middle of the first place of a text.
    void click(const QString& text) {
        const QTextCursor found = m_browser.document()->find(text);
        ASSERT_FALSE(found.isNull());
        QTextCursor start = found;
        start.setPosition(found.selectionStart());
        const QRect place = m_browser.cursorRect(start).united(m_browser.cursorRect(found));
        QTest::mouseClick(m_browser.viewport(), Qt::LeftButton, {}, place.center());
    }

    void clickLinkTo(const QByteArray& address) {
        show("<p><a href=\"" + address + "\">link</a></p>");
        click(QStringLiteral("link"));
    }

    QSize sizeOfPicture(const QByteArray& address) {
        show("<p><img src=\"" + address + "\"></p>");
        const auto image = m_browser.document()
                               ->resource(QTextDocument::ImageResource, QUrl(QString::fromUtf8(address)))
                               .value<QImage>();
        return image.size();
    }

    std::shared_ptr<const HelpBook> m_book;
    HelpBrowser m_browser;
    QSignalSpy m_outside{&m_browser, &HelpBrowser::outsideWanted};
};

TEST_F(HelpBrowserTest, ShowsAPageOfTheFile) {
    show("<p>ä text</p>");
    EXPECT_EQ(heading(), QStringLiteral("Start"));
    EXPECT_TRUE(m_browser.toPlainText().contains(QStringLiteral("ä text")));
}

TEST_F(HelpBrowserTest, StaysWhereItIsWhenAPageIsNotThere) {
    show({});
    m_browser.showPage(QUrl(QStringLiteral("help:/Missing.htm")));
    EXPECT_EQ(heading(), QStringLiteral("Start"));
}

TEST_F(HelpBrowserTest, FollowsALinkWithinTheFile) {
    clickLinkTo("Other.htm");
    EXPECT_EQ(heading(), QStringLiteral("Other"));
    EXPECT_TRUE(m_outside.isEmpty());
}

TEST_F(HelpBrowserTest, FollowsALinkByKeyboard) {
    show("<p><a href=\"Other.htm\">link</a></p>");
    m_browser.setFocus();
    QTest::keyClick(&m_browser, Qt::Key_Tab);
    QTest::keyClick(&m_browser, Qt::Key_Return);
    EXPECT_EQ(heading(), QStringLiteral("Other"));
}

TEST_F(HelpBrowserTest, FollowsALinkWithinThePage) {
    show("<p><a href=\"#end\">link</a></p>" + QByteArray("<p>line</p>").repeated(200) +
         "<h2><a name=\"end\">End</a></h2>");
    click(QStringLiteral("link"));
    EXPECT_GT(m_browser.verticalScrollBar()->value(), 1000);
    EXPECT_EQ(heading(), QStringLiteral("Start"));
}

TEST_F(HelpBrowserTest, ALinkToNothingStays) {
    clickLinkTo("Missing.htm");
    EXPECT_EQ(heading(), QStringLiteral("Start"));
    EXPECT_TRUE(m_outside.isEmpty());
}

TEST_F(HelpBrowserTest, ALinkOutOfTheFileWaitsForTheClick) {
    show("<p><a href=\"https://www.corvantis.example/\">link</a></p>");
    EXPECT_TRUE(m_outside.isEmpty());
    click(QStringLiteral("link"));
    ASSERT_EQ(m_outside.size(), 1);
    EXPECT_EQ(m_outside[0][0].toUrl(), QUrl(QStringLiteral("https://www.corvantis.example/")));
    EXPECT_EQ(heading(), QStringLiteral("Start"));
}

TEST_F(HelpBrowserTest, OffersMailAddressesToOtherPrograms) {
    clickLinkTo("mailto:info@corvantis.example");
    EXPECT_EQ(m_outside.size(), 1);
}

TEST_F(HelpBrowserTest, LinksToFilesAndProgramsDoNothing) {
    for (const char* address : {"file:///etc/passwd", "/etc/passwd", "../../etc/passwd",
                                "javascript:alert(1)", "smb://srv01/share", "data:text/html,text"}) {
        clickLinkTo(address);
        EXPECT_EQ(heading(), QStringLiteral("Start")) << address;
        EXPECT_TRUE(m_outside.isEmpty()) << address;
    }
}

TEST_F(HelpBrowserTest, PicturesComeOutOfTheFileOnly) {
    QImage picture(30, 20, QImage::Format_RGB32);
    picture.fill(Qt::red);
    const QString path = m_folder.filePath(QStringLiteral("picture.png"));
    ASSERT_TRUE(picture.save(path));
    EXPECT_EQ(sizeOfPicture(path.toUtf8()), QSize(1, 1));
    EXPECT_EQ(sizeOfPicture("file://" + path.toUtf8()), QSize(1, 1));
    EXPECT_EQ(sizeOfPicture("http://127.0.0.1/picture.png"), QSize(1, 1));
    EXPECT_EQ(sizeOfPicture("missing.png"), QSize(1, 1));
}

TEST_F(HelpBrowserTest, DrawsAPictureOfTheFile) {
    QImage picture(300, 200, QImage::Format_RGB32);
    picture.fill(Qt::red);
    ASSERT_TRUE(picture.save(m_folder.filePath(QStringLiteral("picture.png"))));
    QFile saved(m_folder.filePath(QStringLiteral("picture.png")));
    ASSERT_TRUE(saved.open(QIODevice::ReadOnly));
    show("<img src=\"picture.png\">", {{QStringLiteral("picture.png"), saved.readAll()}});
    EXPECT_GE(m_browser.document()->size().height(), 200);
}

TEST_F(HelpBrowserTest, MarksEveryPlaceOfTheWordsUntilAnotherPageIsShown) {
    show("<p>Word and word.</p>");
    m_browser.mark({QStringLiteral("word"), QStringLiteral("and")});
    EXPECT_EQ(m_browser.extraSelections().size(), 3);
    m_browser.showPage(m_book->find(QStringLiteral("Other.htm")));
    EXPECT_TRUE(m_browser.extraSelections().isEmpty());
}

TEST_F(HelpBrowserTest, ScrollsToTheFirstPlaceOfTheWords) {
    show(QByteArray("<p>line</p>").repeated(200) + "<p>needle</p>");
    m_browser.mark({QStringLiteral("needle")});
    EXPECT_GT(m_browser.verticalScrollBar()->value(), 1000);
}

} // namespace
} // namespace shell::help
