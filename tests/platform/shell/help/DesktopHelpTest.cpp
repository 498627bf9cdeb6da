// SPDX-FileCopyrightText: 2026 The qmClient authors
// SPDX-License-Identifier: GPL-3.0-or-later
#include "platform/shell/help/DesktopHelp.h"

#include "platform/shell/help/HelpBrowser.h"
#include "platform/shell/help/HelpWindow.h"
#include "tests/platform/shell/help/HelpFiles.h"

#include <QScreen>
#include <QTextBlock>
#include <QTextDocument>

namespace shell::help {
namespace {

class DesktopHelpTest : public HelpFiles {
protected:
    bool open(const QString& file, const QString& topic = QStringLiteral("Welcome.htm"),
              std::uint32_t command = HH_DISPLAY_TOPIC) {
        return m_help.HtmlHelpA(nullptr, file, command, topic);
    }
    QString goodFile() const {
        return helpFile(
            {{QStringLiteral("Welcome.htm"), page("Welcome")}, {QStringLiteral("Other.htm"), page("Other")}});
    }
    bool isShown() const { return m_help.window() != nullptr && m_help.window()->isVisible(); }
    QString heading() const {
        return m_help.window()->findChild<HelpBrowser*>()->document()->firstBlock().text();
    }

    DesktopHelp m_help{
        {}, {.texts = {}, .icons = {}, .openOutside = [](const QUrl&) {}, .print = [](auto&, auto&) {}}};
};

TEST_F(DesktopHelpTest, ShowsTheTopicInAWindowOfItsOwn) {
    EXPECT_TRUE(open(goodFile()));
    ASSERT_TRUE(isShown());
    EXPECT_TRUE(m_help.window()->isWindow());
    EXPECT_EQ(m_help.window()->parentWidget(), nullptr);
    EXPECT_EQ(heading(), QStringLiteral("Welcome"));
}

TEST_F(DesktopHelpTest, ShowsNothingWithoutTheFile) {
    EXPECT_FALSE(open(m_folder.filePath(QStringLiteral("missing.chm"))));
    EXPECT_FALSE(isShown());
}

TEST_F(DesktopHelpTest, ShowsNothingOfADamagedFile) {
    EXPECT_FALSE(open(write(QStringLiteral("damaged.chm"), compile({{QStringLiteral("Welcome.htm"), "x"}}))));
    EXPECT_FALSE(isShown());
}

TEST_F(DesktopHelpTest, ShowsNothingForATopicThatIsNotThere) {
    EXPECT_FALSE(open(goodFile(), QStringLiteral("Missing.htm")));
    EXPECT_FALSE(isShown());
}

TEST_F(DesktopHelpTest, KnowsNoOtherCommand) {
    EXPECT_FALSE(open(goodFile(), QStringLiteral("Welcome.htm"), 1));
    EXPECT_FALSE(isShown());
}

TEST_F(DesktopHelpTest, TheNextCallUsesTheSameWindow) {
    const QString file = goodFile();
    open(file);
    HelpWindow* window = m_help.window();
    window->close();
    EXPECT_TRUE(open(file, QStringLiteral("Other.htm")));
    EXPECT_EQ(m_help.window(), window);
    EXPECT_TRUE(isShown());
    EXPECT_EQ(heading(), QStringLiteral("Other"));
}

TEST_F(DesktopHelpTest, BringsAMinimisedWindowBack) {
    const QString file = goodFile();
    open(file);
    m_help.window()->showMinimized();
    open(file);
    EXPECT_FALSE(m_help.window()->isMinimized());
}

TEST_F(DesktopHelpTest, AWindowThatIsOpenStaysWhenTheFileIsGone) {
    const QString file = goodFile();
    open(file);
    QFile::remove(file);
    EXPECT_FALSE(open(file));
    EXPECT_TRUE(isShown());
    EXPECT_EQ(heading(), QStringLiteral("Welcome"));
}

TEST_F(DesktopHelpTest, TheWindowFitsTheScreen) {
    open(goodFile());
    EXPECT_TRUE(m_help.window()->screen()->availableGeometry().contains(m_help.window()->geometry()));
}

} // namespace
} // namespace shell::help
