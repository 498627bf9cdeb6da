// SPDX-FileCopyrightText: 2026 The qmClient authors
// SPDX-License-Identifier: GPL-3.0-or-later
#include "platform/shell/NetworkBrowser.h"

#include "tests/platform/shell/ScriptedSources.h"

#include <QApplication>
#include <QTest>
#include <QTimer>

#include <gtest/gtest.h>

namespace shell {
namespace {

constexpr std::chrono::seconds kPatience{20};

class NetworkBrowserTest : public ::testing::Test {
protected:
    // What the user does once the browser is up.
    std::optional<ItemIdList> browse(BrowseInfo& info, const std::function<void(NetworkDialog&)>& act) {
        QTimer::singleShot(0, qApp,
                           [act] { act(*qobject_cast<NetworkDialog*>(QApplication::activeModalWidget())); });
        QTimer patience; // a browser that nobody answers must not stay for ever
        QObject::connect(&patience, &QTimer::timeout, qApp, [] {
            ADD_FAILURE() << "still open";
            QApplication::activeModalWidget()->close();
        });
        patience.start(kPatience);
        return m_browser.SHBrowseForFolderA(info);
    }
    static void pickFirst(NetworkDialog& dialog) {
        auto* tree = dialog.findChild<NetworkTree*>();
        tree->setCurrentItem(tree->topLevelItem(0));
        QTest::keyClick(&dialog, Qt::Key_Return);
    }
    static NetworkDialog::ComputerSources computers() {
        NetworkDialog::ComputerSources sources;
        sources.push_back(std::make_unique<ScriptedComputers>(
            [](ScriptedComputers& source) { Q_EMIT source.found(u"SERVER1"_qs, u""_qs); }));
        return sources;
    }

    QStringList m_asked;
    NetworkBrowser m_browser{scriptedTexts(),
                             {computers, [this] { return std::make_unique<ScriptedShares>(m_asked); }}};
};

TEST_F(NetworkBrowserTest, KnowsTheNeighbourhoodAndNoOtherFolder) {
    ItemIdList list;
    EXPECT_EQ(m_browser.SHGetSpecialFolderLocation(0, kCsidlNetwork, list), 0);
    EXPECT_EQ(list, ItemIdList());
    EXPECT_NE(m_browser.SHGetSpecialFolderLocation(0, 5, list), 0);
}

TEST_F(NetworkBrowserTest, AnswersThePickedComputerWithItsName) {
    QWidget owner;
    owner.show();
    BrowseInfo info{.hwndOwner = reinterpret_cast<OwnerHandle>(&owner), .ulFlags = kBifBrowseForComputer};
    EXPECT_EQ(browse(info, pickFirst), (ItemIdList{"SERVER1", ""}));
    EXPECT_STREQ(info.pszDisplayName.data(), "SERVER1");
}

TEST_F(NetworkBrowserTest, AnswersNothingWhenItIsCancelled) {
    BrowseInfo info{.hwndOwner = 4711, .ulFlags = kBifBrowseForComputer};
    EXPECT_EQ(browse(info, [](NetworkDialog& dialog) { dialog.reject(); }), std::nullopt);
}

TEST_F(NetworkBrowserTest, OffersSharesOnlyWhereTheyAreAskedFor) {
    const auto open = [](NetworkDialog& dialog) {
        dialog.findChild<NetworkTree*>()->topLevelItem(0)->setExpanded(true);
        dialog.reject();
    };
    BrowseInfo computers{.ulFlags = kBifBrowseForComputer};
    browse(computers, open);
    EXPECT_TRUE(m_asked.isEmpty());
    BrowseInfo shares{.ulFlags = kBifReturnOnlyFsDirs};
    browse(shares, open);
    EXPECT_EQ(m_asked, QStringList{u"SERVER1"_qs});
}

TEST_F(NetworkBrowserTest, GivesSharesAPathAndComputersNone) {
    PathBuffer path;
    EXPECT_FALSE(m_browser.SHGetPathFromIDListA({"SERVER1", ""}, path));
    EXPECT_TRUE(m_browser.SHGetPathFromIDListA({"SERVER1", "calls"}, path));
    EXPECT_STREQ(path.data(), "\\\\SERVER1\\calls");
}

TEST_F(NetworkBrowserTest, GivesNoPathThatHasNoRoomForItsEnd) {
    PathBuffer path;
    const std::size_t most = path.size() - std::string("\\\\n\\").size() - 1;
    EXPECT_TRUE(m_browser.SHGetPathFromIDListA({"n", std::string(most, 's')}, path));
    EXPECT_EQ(path.back(), '\0');
    EXPECT_FALSE(m_browser.SHGetPathFromIDListA({"n", std::string(most + 1, 's')}, path));
}

} // namespace
} // namespace shell
