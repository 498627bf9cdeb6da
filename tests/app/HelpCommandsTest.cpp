// SPDX-FileCopyrightText: 2026 The qmClient authors
// SPDX-License-Identifier: GPL-3.0-or-later
#include "app/HelpLook.h"
#include "dialogs/frmAbout.h"
#include "platform/shell/help/HelpWindow.h"
#include "resources/StringTable.h"
#include "tests/app/MainWorld.h"

#include <QApplication>
#include <QPushButton>
#include <QTest>
#include <QTextBrowser>
#include <QTimer>

namespace app {
namespace {

class HelpCommandsTest : public MainWorld {
protected:
    HelpCommandsTest() {
        configure({12});
        mailbox(12);
    }

    // Runs a command whose dialog `look` looks at and which then is closed.
    void runModal(const char* command, const std::function<void(QWidget&)>& look) {
        QTimer::singleShot(0, &*window, [&] {
            QWidget* dialog = QApplication::activeModalWidget();
            ASSERT_NE(dialog, nullptr);
            look(*dialog);
            dialog->close();
        });
        window->ab_ToolClick(command);
    }

    QString shownPage() const {
        return help.window() != nullptr && help.window()->isVisible()
                   ? help.window()->findChild<QTextBrowser*>()->documentTitle()
                   : QString();
    }
};

TEST_F(HelpCommandsTest, ContentsOpensTheHelpFileAtItsWelcomePage) {
    load();
    window->ab_ToolClick("miHContents");
    EXPECT_EQ(shownPage(), QStringLiteral("Welcome to Quillamar Client"));
    EXPECT_TRUE(errorHandler.reports.empty());
}

TEST_F(HelpCommandsTest, TheHelpIsInTheProgramsLanguage) {
    resources::setLanguage(resources::Language::German);
    shell::help::DesktopHelp german(helpLayout(), helpSurroundings());
    const QString file = QCoreApplication::applicationDirPath() + QStringLiteral("/Quillamar_Client.chm");
    EXPECT_TRUE(
        german.HtmlHelpA(nullptr, file, shell::HH_DISPLAY_TOPIC, QStringLiteral("Client_Welcome.htm")));
    resources::setLanguage(resources::Language::English);
    EXPECT_EQ(german.window()->windowTitle(), QStringLiteral("Quillamar Client - Hilfe"));
    EXPECT_EQ(german.window()->findChild<QTextBrowser*>()->documentTitle(),
              QStringLiteral("Willkommen beim Quillamar Client"));
}

class ThrowingHelp final : public shell::HelpViewer {
public:
    bool HtmlHelpA(QWidget*, const QString& file, std::uint32_t, const QString& topic) override {
        asked = {file, topic};
        throw basic::RuntimeError(basic::kObjectNotSet);
    }

    QStringList asked;
};

TEST_F(HelpCommandsTest, AMissingHelpFileShowsNothing) {
    QWidget owner;
    HelpCommands commands({reportTo, messageBoxes, {help, QStringLiteral("/nowhere"), registry, {}}, owner});
    commands.ShowHelp();
    EXPECT_EQ(shownPage(), QString());
    EXPECT_TRUE(errorHandler.reports.empty());
    EXPECT_TRUE(messageBoxes.boxes.empty());
}

TEST_F(HelpCommandsTest, AFailureOfTheHelpIsIgnored) {
    ThrowingHelp throwing;
    QWidget owner;
    HelpCommands commands({reportTo, messageBoxes, {throwing, QStringLiteral("/bin"), registry, {}}, owner});
    commands.ShowHelp();
    EXPECT_EQ(throwing.asked, (QStringList{QStringLiteral("/bin/Quillamar_Client.chm"),
                                           QStringLiteral("Client_Welcome.htm")}));
    EXPECT_TRUE(errorHandler.reports.empty());
}

TEST_F(HelpCommandsTest, AboutIsModalOwnedByTheWindowAndGoneAfterwards) {
    load();
    runModal("miHAbout", [&](QWidget& dialog) {
        EXPECT_NE(qobject_cast<dialogs::frmAbout*>(&dialog), nullptr);
        EXPECT_EQ(dialog.parentWidget(), &*window);
        EXPECT_EQ(dialog.windowTitle(), QStringLiteral("About Quillamar Client"));
    });
    EXPECT_EQ(window->findChild<dialogs::frmAbout*>(), nullptr);
}

TEST_F(HelpCommandsTest, AboutIsModalWhileTheWindowIsHidden) {
    load();
    ASSERT_FALSE(window->isVisible());
    runModal("miHAbout", [](QWidget& dialog) { EXPECT_TRUE(dialog.isVisible()); });
}

TEST_F(HelpCommandsTest, AboutStartsTheSystemInformation) {
    load();
    runModal("miHAbout", [](QWidget& dialog) {
        QTest::mouseClick(dialog.findChild<QPushButton*>(QStringLiteral("cmdSysInfo")), Qt::LeftButton);
    });
    ASSERT_EQ(messageBoxes.boxes.size(), 1); // there is no such program
    EXPECT_EQ(messageBoxes.boxes[0].text, "System Information Is Unavailable At This Time");
    EXPECT_TRUE(startedPrograms.empty());
}

TEST_F(HelpCommandsTest, AboutBringsAModalWindowThatIsUpToTheFrontInstead) {
    load();
    runModal("miHAbout", [&](QWidget& dialog) {
        window->ab_ToolClick("miHAbout");
        EXPECT_EQ(QApplication::activeModalWidget(), &dialog);
        EXPECT_EQ(window->findChildren<dialogs::frmAbout*>().size(), 1);
    });
}

TEST_F(HelpCommandsTest, TheProgramEndsWhileTheAboutBoxIsUp) {
    load();
    QTimer::singleShot(0, &*window, [&] { window->ab_ToolClick("miFExit"); });
    window->ab_ToolClick("miHAbout");
    EXPECT_TRUE(window->isUnloaded());
}

} // namespace
} // namespace app
