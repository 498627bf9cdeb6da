// SPDX-FileCopyrightText: 2026 The qmClient authors
// SPDX-License-Identifier: GPL-3.0-or-later
// Where the call list lies in the main window, and which of its columns a user can size.
#include "tests/app/MainWorld.h"

#include <QHeaderView>
#include <QMouseEvent>

namespace app {
namespace {

class LayoutTest : public MainWorld {
protected:
    void show(const std::vector<int>& ids) {
        configure(ids);
        for (const int id : ids)
            mailbox(id).append(3);
        load();
        window->showWindow();
        QCoreApplication::processEvents();
    }
    // The tab page, two pixels further left and one lower, three wider.
    QRect expected() {
        const forms::TabStrip& strip = tabStrip();
        return {basic::toPixels(strip.ClientLeft()) - 2, basic::toPixels(strip.ClientTop()) + 1,
                basic::toPixels(strip.ClientWidth()) + 3, basic::toPixels(strip.ClientHeight())};
    }
    QHeaderView& header() { return *list().findChild<QHeaderView*>(); }
    int widthAfterDragging(int column, int pixels) {
        const int right = header().sectionViewportPosition(column) + header().sectionSize(column);
        const QPoint from(right - 1, header().height() / 2);
        const QPoint to = from + QPoint(pixels, 0);
        mouse(QEvent::MouseMove, from, Qt::NoButton, Qt::NoButton);
        mouse(QEvent::MouseButtonPress, from, Qt::LeftButton, Qt::LeftButton);
        mouse(QEvent::MouseMove, to, Qt::NoButton, Qt::LeftButton);
        mouse(QEvent::MouseButtonRelease, to, Qt::LeftButton, Qt::NoButton);
        return header().sectionSize(column);
    }
    void mouse(QEvent::Type type, QPoint where, Qt::MouseButton button, Qt::MouseButtons held) {
        QWidget* viewport = header().viewport();
        QMouseEvent event(type, where, viewport->mapToGlobal(where), button, held, {});
        QCoreApplication::sendEvent(viewport, &event);
    }
};

TEST_F(LayoutTest, ListCoversTheTabPageWithItsBorderUnderTheFrame) {
    show({12, 15});
    EXPECT_EQ(list().geometry(), expected());
}

TEST_F(LayoutTest, ListCoversEverythingWhereOneMailboxNeedsNoTabs) {
    show({12});
    EXPECT_EQ(tabStrip().ClientTop().value, 0);
    EXPECT_EQ(list().geometry(), expected());
    EXPECT_GE(list().geometry().right(), tabStrip().rect().right());
}

TEST_F(LayoutTest, ListFollowsTheWindow) {
    show({12, 15});
    const QSize before = list().size();
    window->resize(window->size() + QSize(120, 80));
    QCoreApplication::processEvents();
    EXPECT_EQ(list().size(), before + QSize(120, 80));
    EXPECT_EQ(list().geometry(), expected());
}

// As when a band beside it comes or goes: the window's own size stays.
TEST_F(LayoutTest, ListFollowsTheStripWhereTheWindowKeepsItsSize) {
    show({12, 15});
    const QRect before = list().geometry();
    tabStrip().resize(tabStrip().size() - QSize(50, 40));
    EXPECT_NE(list().geometry(), before);
    EXPECT_EQ(list().geometry(), expected());
}

TEST_F(LayoutTest, FirstColumnCannotBeDraggedAndTheOthersCan) {
    show({12});
    const int first = header().sectionSize(0);
    EXPECT_EQ(widthAfterDragging(0, 40), first);
    const int second = header().sectionSize(1);
    EXPECT_EQ(widthAfterDragging(1, 40), second + 40);
}

// The window may stay for a while after its end, in which nobody answers.
TEST_F(LayoutTest, AWindowThatWasUnloadedLaysNothingOut) {
    show({12, 15});
    window->unload(UnloadMode::Code);
    const QRect before = list().geometry();
    tabStrip().resize(tabStrip().size() - QSize(50, 40));
    EXPECT_EQ(list().geometry(), before);
}

} // namespace
} // namespace app
