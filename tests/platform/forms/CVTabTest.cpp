// SPDX-FileCopyrightText: 2026 The qmClient authors
// SPDX-License-Identifier: GPL-3.0-or-later
#include "platform/forms/CVTab.h"

#include "tests/platform/basic/ErrorOf.h"

#include <QLabel>
#include <QLineEdit>
#include <QTabBar>
#include <QTest>
#include <QVBoxLayout>

#include <gtest/gtest.h>

namespace forms {
namespace {

class CVTabTest : public testing::Test {
protected:
    QTabBar& bar() { return *tab.findChild<QTabBar*>(); }
    void showActive() {
        tab.show();
        tab.activateWindow();
        ASSERT_TRUE(QTest::qWaitForWindowActive(&tab));
    }

    CVTab tab;
};

TEST_F(CVTabTest, TheFirstTabIsSelected) {
    EXPECT_EQ(tab.SelectedTab(), 0);
    tab.AddTab("Options");
    tab.AddTab("More");
    EXPECT_EQ(tab.SelectedTab(), 1);
    tab.SetSelectedTab(2);
    EXPECT_EQ(tab.SelectedTab(), 2);
}

TEST_F(CVTabTest, ACaptionIsShownAsItIsAndCanBeSetAgain) {
    tab.AddTab("");
    tab.SetTabCaption(1, "Sales & Support");
    EXPECT_EQ(tab.TabCaption(1), "Sales & Support");
    EXPECT_EQ(bar().tabText(0), QStringLiteral("Sales && Support"));
    EXPECT_EQ(tab.Page(1).accessibleName(), QStringLiteral("Sales & Support"));
}

TEST_F(CVTabTest, UnknownTabsAreElementNotFound) {
    tab.AddTab("Options");
    EXPECT_EQ(basic::errorOf([&] { tab.TabCaption(0); }), basic::kElementNotFound);
    EXPECT_EQ(basic::errorOf([&] { tab.SetTabCaption(2, "x"); }), basic::kElementNotFound);
    EXPECT_EQ(basic::errorOf([&] { tab.Page(2); }), basic::kElementNotFound);
    EXPECT_EQ(basic::errorOf([&] { tab.SetSelectedTab(0); }), basic::kElementNotFound);
}

TEST_F(CVTabTest, TheFrameHasRoomForItsPage) {
    auto* layout = new QVBoxLayout(&tab.AddTab("Options"));
    auto* label = new QLabel(QString(80, u'W'));
    layout->addWidget(label);
    EXPECT_GT(tab.minimumSizeHint().width(), label->minimumSizeHint().width());
    EXPECT_GT(tab.minimumSizeHint().height(), label->minimumSizeHint().height() + bar().sizeHint().height());
}

TEST_F(CVTabTest, TheKeyboardPassesOverASingleTab) {
    auto* layout = new QVBoxLayout(&tab.AddTab("Options"));
    auto* first = new QLineEdit;
    auto* second = new QLineEdit;
    layout->addWidget(first);
    layout->addWidget(second);
    showActive();
    first->setFocus();
    QTest::keyClick(first, Qt::Key_Tab);
    EXPECT_TRUE(second->hasFocus());
    QTest::keyClick(second, Qt::Key_Tab);
    EXPECT_TRUE(first->hasFocus());
}

TEST_F(CVTabTest, TheKeyboardReachesARowOfTabs) {
    auto* layout = new QVBoxLayout(&tab.AddTab("Options"));
    auto* field = new QLineEdit;
    layout->addWidget(field);
    tab.AddTab("More");
    showActive();
    field->setFocus();
    QTest::keyClick(field, Qt::Key_Tab);
    EXPECT_TRUE(bar().hasFocus());
}

} // namespace
} // namespace forms
