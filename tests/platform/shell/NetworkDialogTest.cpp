// SPDX-FileCopyrightText: 2026 The qmClient authors
// SPDX-License-Identifier: GPL-3.0-or-later
#include "platform/shell/NetworkDialog.h"

#include "tests/platform/shell/ScriptedSources.h"

#include <QLabel>
#include <QProgressBar>
#include <QPushButton>
#include <QTest>

#include <gmock/gmock.h>

namespace shell {
namespace {

using ::testing::ElementsAre;

class NetworkDialogTest : public ::testing::Test {
protected:
    // Two sources, one of which the test speaks for.
    void open(bool withShares = false) {
        NetworkDialog::ComputerSources computers;
        for (int i = 0; i < 2; ++i)
            computers.push_back(std::make_unique<ScriptedComputers>());
        m_one = static_cast<ScriptedComputers*>(computers[0].get());
        m_other = static_cast<ScriptedComputers*>(computers[1].get());
        auto shares = withShares ? std::make_unique<ScriptedShares>(m_asked) : nullptr;
        m_shares = shares.get();
        m_dialog.emplace(m_texts, u"Pick one."_qs, std::move(computers), std::move(shares));
        m_dialog->search();
        m_dialog->show();
    }
    NetworkTree& tree() { return *m_dialog->findChild<NetworkTree*>(); }
    QStringList rows() {
        QStringList rows;
        for (int i = 0; i < tree().topLevelItemCount(); ++i)
            rows.append(tree().topLevelItem(i)->text(0));
        return rows;
    }
    QStringList sharesOf(int row) {
        QStringList rows;
        for (int i = 0; i < tree().topLevelItem(row)->childCount(); ++i)
            rows.append(tree().topLevelItem(row)->child(i)->text(0));
        return rows;
    }
    QString status() { return m_dialog->findChild<QLabel*>(u"lblStatus"_qs)->text(); }
    bool isProgressShown() { return m_dialog->findChild<QProgressBar*>()->isVisible(); }
    QPushButton& button(const QString& name) { return *m_dialog->findChild<QPushButton*>(name); }
    void key(Qt::Key key) { QTest::keyClick(m_dialog->focusWidget(), key); }

    const NetworkTexts m_texts = scriptedTexts();
    QStringList m_asked;
    std::optional<NetworkDialog> m_dialog;
    ScriptedComputers* m_one = nullptr;
    ScriptedComputers* m_other = nullptr;
    ScriptedShares* m_shares = nullptr;
};

TEST_F(NetworkDialogTest, ShowsComputersAsTheyAreFoundInTheOrderOfTheirNames) {
    open();
    EXPECT_TRUE(m_one->isStarted && m_other->isStarted);
    Q_EMIT m_one->found(u"beta"_qs, u""_qs);
    EXPECT_EQ(rows(), QStringList{u"beta"_qs});
    Q_EMIT m_other->found(u"alpha"_qs, u""_qs);
    EXPECT_EQ(rows(), (QStringList{u"alpha"_qs, u"beta"_qs}));
    Q_EMIT m_other->found(u"SRV01"_qs, u""_qs);
    Q_EMIT m_other->found(u"Büro"_qs, u""_qs);
    EXPECT_EQ(rows(), (QStringList{u"alpha"_qs, u"beta"_qs, u"Büro"_qs, u"SRV01"_qs}));
}

TEST_F(NetworkDialogTest, ShowsThatItSearchesUntilAllSourcesHaveTold) {
    open();
    EXPECT_TRUE(isProgressShown());
    EXPECT_EQ(status(), u"Searching"_qs);
    Q_EMIT m_one->searched();
    EXPECT_TRUE(isProgressShown());
    Q_EMIT m_other->found(u"nas"_qs, u""_qs);
    Q_EMIT m_other->searched();
    EXPECT_FALSE(isProgressShown());
    EXPECT_EQ(status(), u"Found 1"_qs);
    Q_EMIT m_one->found(u"later"_qs, u""_qs);
    EXPECT_EQ(status(), u"Found 2"_qs);
}

TEST_F(NetworkDialogTest, IsEmptyWithoutAnyNetworkService) {
    open();
    Q_EMIT m_one->searched();
    Q_EMIT m_other->searched();
    EXPECT_EQ(status(), u"Nothing"_qs);
    EXPECT_FALSE(button(u"OKButton"_qs).isEnabled());
    key(Qt::Key_Return);
    EXPECT_TRUE(m_dialog->isVisible());
    EXPECT_FALSE(m_dialog->picked());
}

TEST_F(NetworkDialogTest, ShowsOneComputerOnceInHoweverManyWaysItIsFound) {
    open();
    Q_EMIT m_one->found(u"nas.local"_qs, u"NAS"_qs);
    Q_EMIT m_one->found(u"nas.local."_qs, u"NAS"_qs);
    Q_EMIT m_other->found(u"NAS"_qs, u"WORKGROUP"_qs);
    EXPECT_EQ(rows(), QStringList{u"nas.local"_qs});
    EXPECT_EQ(tree().topLevelItem(0)->text(1), QString());
    Q_EMIT m_one->found(u"192.0.2.7"_qs, u""_qs);
    Q_EMIT m_one->found(u"192.0.2.8"_qs, u""_qs);
    EXPECT_EQ(rows().size(), 3);
}

TEST_F(NetworkDialogTest, PassesOverNamesThatNoPathCanHold) {
    open();
    for (const QString& name : {u""_qs, u"."_qs, u"a\\b"_qs, u"a/b"_qs, u"a\nb"_qs, u"a b "_qs, u"a?"_qs,
                                QString(254, u'n'), QString(u'\0')})
        Q_EMIT m_one->found(name, u""_qs);
    EXPECT_EQ(rows(), QStringList());
    Q_EMIT m_one->found(u"nas"_qs, u"a\nb\tc"_qs + QString(500, u'x'));
    EXPECT_TRUE(tree().topLevelItem(0)->text(1).startsWith(u"a b c"_qs));
    EXPECT_LE(tree().topLevelItem(0)->text(1).size(), 200);
}

TEST_F(NetworkDialogTest, TakesNoMoreComputersThanItCanShow) {
    open();
    for (int i = 0; i < NetworkTree::kMostComputers + 10; ++i)
        Q_EMIT m_one->found(u"host%1"_qs.arg(i), u""_qs);
    EXPECT_EQ(tree().computerCount(), NetworkTree::kMostComputers);
}

TEST_F(NetworkDialogTest, IsUsedByKeyboardAlone) {
    open();
    Q_EMIT m_one->found(u"beta"_qs, u""_qs);
    Q_EMIT m_one->found(u"alpha"_qs, u""_qs);
    key(Qt::Key_Down);
    EXPECT_TRUE(button(u"OKButton"_qs).isEnabled());
    key(Qt::Key_B);
    key(Qt::Key_Return);
    EXPECT_EQ(m_dialog->result(), QDialog::Accepted);
    EXPECT_EQ(m_dialog->picked(), (ItemIdList{"beta", ""}));
}

TEST_F(NetworkDialogTest, KeepsWhatIsPickedWhileOthersArrive) {
    open();
    Q_EMIT m_one->found(u"beta"_qs, u""_qs);
    key(Qt::Key_Down);
    Q_EMIT m_one->found(u"alpha"_qs, u""_qs);
    EXPECT_EQ(m_dialog->picked(), (ItemIdList{"beta", ""}));
}

TEST_F(NetworkDialogTest, PicksByDoubleClick) {
    open();
    Q_EMIT m_one->found(u"nas"_qs, u""_qs);
    const QPoint place = tree().visualItemRect(tree().topLevelItem(0)).center();
    QTest::mouseClick(tree().viewport(), Qt::LeftButton, {}, place);
    QTest::mouseDClick(tree().viewport(), Qt::LeftButton, {}, place);
    EXPECT_EQ(m_dialog->result(), QDialog::Accepted);
}

TEST_F(NetworkDialogTest, IsCancelledAtAnyTime) {
    open();
    Q_EMIT m_one->found(u"nas"_qs, u""_qs);
    key(Qt::Key_Escape);
    EXPECT_FALSE(m_dialog->isVisible());
    EXPECT_EQ(m_dialog->result(), QDialog::Rejected);
    m_dialog.reset(); // while its sources are at work
}

TEST_F(NetworkDialogTest, AsksAComputerForItsSharesWhenItIsOpened) {
    open(true);
    Q_EMIT m_one->found(u"nas"_qs, u""_qs);
    key(Qt::Key_Down);
    key(Qt::Key_Right);
    EXPECT_EQ(m_asked, QStringList{u"nas"_qs});
    EXPECT_EQ(sharesOf(0), QStringList{u"Loading"_qs});
    Q_EMIT m_shares->listed(u"nas"_qs, {u"public"_qs, u"calls"_qs, u"a\\b"_qs});
    EXPECT_EQ(sharesOf(0), (QStringList{u"calls"_qs, u"public"_qs}));
    key(Qt::Key_Down);
    key(Qt::Key_Return);
    EXPECT_EQ(m_dialog->picked(), (ItemIdList{"nas", "calls"}));
    tree().topLevelItem(0)->setExpanded(false);
    tree().topLevelItem(0)->setExpanded(true);
    EXPECT_EQ(m_asked.size(), 1);
}

TEST_F(NetworkDialogTest, AsksAgainWhereSharesCouldNotBeListed) {
    open(true);
    Q_EMIT m_one->found(u"nas"_qs, u""_qs);
    tree().topLevelItem(0)->setExpanded(true);
    Q_EMIT m_shares->failed(u"nas"_qs);
    EXPECT_EQ(sharesOf(0), QStringList{u"Failed"_qs});
    EXPECT_FALSE(m_dialog->picked());
    tree().topLevelItem(0)->setExpanded(false);
    tree().topLevelItem(0)->setExpanded(true);
    EXPECT_EQ(m_asked.size(), 2);
    Q_EMIT m_shares->listed(u"nas"_qs, {});
    EXPECT_EQ(sharesOf(0), QStringList{u"No shares"_qs});
    Q_EMIT m_shares->listed(u"unknown"_qs, {u"x"_qs});
}

} // namespace
} // namespace shell
