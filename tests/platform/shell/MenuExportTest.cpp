// SPDX-FileCopyrightText: 2026 The qmClient authors
// SPDX-License-Identifier: GPL-3.0-or-later
#include "platform/shell/MenuExport.h"

#include <QCoreApplication>
#include <QMenu>

#include <gtest/gtest.h>

namespace shell {
namespace {

class MenuExportTest : public ::testing::Test {
protected:
    MenuExportTest() {
        m_menu.addAction(u"&View Call Log"_qs);
        m_menu.addSeparator();
        m_menu.addAction(u"Close"_qs)->setEnabled(false);
        QCoreApplication::processEvents();
    }
    MenuLayout layout(int parent = 0, int depth = -1, const QStringList& names = {}) {
        MenuLayout result;
        m_export.GetLayout(parent, depth, names, result);
        return result;
    }

    QMenu m_menu;
    QObject m_object;
    int m_openings = 0;
    MenuExport m_export{&m_object, &m_menu, [this] { ++m_openings; }};
};

TEST_F(MenuExportTest, PublishesTheItemsInTheirOrder) {
    const MenuLayout whole = layout();
    ASSERT_EQ(whole.children.size(), 3);
    EXPECT_EQ(whole.properties.value(u"children-display"_qs), u"submenu"_qs);
    EXPECT_EQ(whole.children[0].id, 1);
    EXPECT_EQ(whole.children[0].properties, (QVariantMap{{u"label"_qs, u"_View Call Log"_qs}}));
    EXPECT_EQ(whole.children[1].properties, (QVariantMap{{u"type"_qs, u"separator"_qs}}));
    EXPECT_EQ(whole.children[2].properties,
              (QVariantMap{{u"label"_qs, u"Close"_qs}, {u"enabled"_qs, false}}));
}

TEST_F(MenuExportTest, PublishesOnlyTheLevelsAndPropertiesAskedFor) {
    EXPECT_TRUE(layout(0, 0).children.isEmpty());
    EXPECT_TRUE(layout(1).children.isEmpty());
    EXPECT_TRUE(layout(0, -1, {u"type"_qs}).children[0].properties.isEmpty());
}

TEST_F(MenuExportTest, DoublesUnderscoresAndKeepsRealAmpersands) {
    m_menu.actions()[0]->setText(u"a_b && &c&"_qs);
    EXPECT_EQ(m_export.GetProperty(1, u"label"_qs).variant(), u"a__b & _c"_qs);
}

TEST_F(MenuExportTest, AnswersNothingForUnknownItems) {
    EXPECT_TRUE(m_export.GetGroupProperties({-1, 4, 2147483647}, {}).isEmpty());
    EXPECT_EQ(m_export.GetGroupProperties({}, {}).size(), 3);
    m_export.Event(-1, u"clicked"_qs, QDBusVariant(), 0);
    m_export.Event(99, u"clicked"_qs, QDBusVariant(), 0);
    EXPECT_EQ(m_export.EventGroup({{99, u"clicked"_qs, {}, 0}}), QList<int>{99});
}

TEST_F(MenuExportTest, TriggersAChosenItemAfterTheAnswerHasLeft) {
    int chosen = 0;
    QObject::connect(m_menu.actions()[0], &QAction::triggered, &m_menu, [&] { ++chosen; });
    m_export.Event(1, u"clicked"_qs, QDBusVariant(), 0);
    EXPECT_EQ(chosen, 0);
    QCoreApplication::processEvents();
    EXPECT_EQ(chosen, 1);
}

TEST_F(MenuExportTest, AnnouncesTheChangesOfOneTurnOnce) {
    QCoreApplication::processEvents();
    int announced = 0;
    QObject::connect(&m_export, &MenuExport::LayoutUpdated, &m_export, [&] { ++announced; });
    m_menu.actions()[0]->setText(u"Other"_qs);
    m_menu.actions()[2]->setEnabled(true);
    EXPECT_EQ(announced, 0);
    QCoreApplication::processEvents();
    EXPECT_EQ(announced, 1);
}

TEST_F(MenuExportTest, AsksForANewLookOnlyWhenSomethingChanged) {
    QCoreApplication::processEvents();
    layout();
    EXPECT_FALSE(m_export.AboutToShow(0));
    m_menu.actions()[0]->setText(u"Other"_qs);
    EXPECT_TRUE(m_export.AboutToShow(0));
}

TEST_F(MenuExportTest, CountsAnOpeningOnceHoweverThePanelAnnouncesIt) {
    m_export.AboutToShow(0);
    m_export.Event(0, u"opened"_qs, QDBusVariant(), 0);
    EXPECT_EQ(m_openings, 1);
    m_export.Event(0, u"closed"_qs, QDBusVariant(), 0);
    m_export.Event(0, u"opened"_qs, QDBusVariant(), 0);
    m_export.AboutToShow(0);
    EXPECT_EQ(m_openings, 2);
}

TEST_F(MenuExportTest, CountsEveryOpeningOfAPanelThatOnlyAsksBefore) {
    m_export.AboutToShow(0);
    m_export.AboutToShow(0);
    EXPECT_EQ(m_openings, 2);
    m_export.AboutToShow(1);
    EXPECT_EQ(m_openings, 2);
}

TEST(MenuExportLifetimeTest, IsEmptyWhenItsMenuIsGone) {
    QObject object;
    auto menu = std::make_unique<QMenu>();
    menu->addAction(u"a"_qs);
    MenuExport exported(&object, menu.get(), [] {});
    menu.reset();
    MenuLayout layout;
    exported.GetLayout(0, -1, {}, layout);
    EXPECT_TRUE(layout.children.isEmpty());
}

} // namespace
} // namespace shell
