// SPDX-FileCopyrightText: 2026 The qmClient authors
// SPDX-License-Identifier: GPL-3.0-or-later
#include "dialogs/clsComBrowser.h"

#include "resources/StringTable.h"
#include "tests/dialogs/ScriptedBrowser.h"
#include "tests/errors/RecordingErrorHandler.h"

#include <gtest/gtest.h>

namespace dialogs {
namespace {

class clsComBrowserTest : public testing::Test {
protected:
    clsComBrowserTest() { resources::setLanguage(resources::Language::English); }
    ~clsComBrowserTest() override {
        resources::setLanguage(resources::Language::English);
        EXPECT_TRUE(m_errors.reports.empty());
    }

    errors::RecordingErrorHandler m_errors;
    ScriptedBrowser m_shell;
    clsComBrowser m_browser{m_errors, m_shell};
};

TEST_F(clsComBrowserTest, NamesAPickedComputerWithTwoLeadingBackslashes) {
    m_shell.displayName = "SERVER1";
    m_shell.picked = shell::ItemIdList{"SERVER1", ""};
    EXPECT_EQ(m_browser.GetBrowseNetworkWorkstation(7), "\\\\SERVER1");
    EXPECT_EQ(m_browser.GetBrowseNetworkShare(7), "\\\\SERVER1");
}

TEST_F(clsComBrowserTest, NamesAPickedShareByItsPathUpToTheFirstZero) {
    m_shell.displayName = "public";
    m_shell.picked = shell::ItemIdList{"SERVER1", "public"};
    EXPECT_EQ(m_browser.GetBrowseNetworkShare(7), "\\\\SERVER1\\public");
}

TEST_F(clsComBrowserTest, TakesANameThatFillsTheWholeBuffer) {
    m_shell.displayName = std::string(300, 'n');
    m_shell.picked = shell::ItemIdList{"n", ""};
    EXPECT_EQ(m_browser.GetBrowseNetworkWorkstation(7), "\\\\" + std::string(260, 'n'));
}

TEST_F(clsComBrowserTest, AnswersTheEmptyTextWhenTheBrowserIsCancelled) {
    EXPECT_EQ(m_browser.GetBrowseNetworkWorkstation(7), "");
    EXPECT_EQ(m_browser.GetBrowseNetworkShare(7), "");
    EXPECT_TRUE(m_shell.asked);
}

TEST_F(clsComBrowserTest, AnswersTheEmptyTextWithoutANeighbourhoodAndOpensNothing) {
    m_shell.hasNetwork = false;
    m_shell.picked = shell::ItemIdList{"SERVER1", ""};
    EXPECT_EQ(m_browser.GetBrowseNetworkWorkstation(7), "");
    EXPECT_EQ(m_browser.GetBrowseNetworkShare(7), "");
    EXPECT_FALSE(m_shell.asked);
    EXPECT_EQ(m_shell.folder, 18);
}

TEST_F(clsComBrowserTest, AsksForAComputerOverTheOwner) {
    m_browser.GetBrowseNetworkWorkstation(7);
    EXPECT_EQ(m_shell.asked->hwndOwner, 7U);
    EXPECT_EQ(m_shell.asked->ulFlags, 4096U);
    EXPECT_EQ(m_shell.asked->lpszTitle, "Select a network computer.");
}

TEST_F(clsComBrowserTest, AsksForAShareInTheUsersLanguage) {
    resources::setLanguage(resources::Language::German);
    m_browser.GetBrowseNetworkShare(8);
    EXPECT_EQ(m_shell.asked->hwndOwner, 8U);
    EXPECT_EQ(m_shell.asked->ulFlags, 1U);
    EXPECT_EQ(m_shell.asked->lpszTitle, "Wählen Sie einen Computer oder eine Netzwerk-Freigabe.");
}

} // namespace
} // namespace dialogs
