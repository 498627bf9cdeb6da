// SPDX-FileCopyrightText: 2026 The qmClient authors
// SPDX-License-Identifier: GPL-3.0-or-later
// The user's keys and clicks while the program waits for a server.
#include "tests/app/ShareWaiterTest.h"

#include <QCoreApplication>
#include <QCursor>
#include <QDialog>
#include <QElapsedTimer>
#include <QGuiApplication>
#include <QMenu>
#include <QPushButton>
#include <QTest>
#include <QTimer>

#include <functional>
#include <memory>
#include <optional>

namespace app {
namespace {

using namespace std::chrono_literals;
using share::Waited;

// A window with a button in it, and a user who clicks when the wait has taken long.
class InputTest : public ShareWaiterTest {
protected:
    InputTest() {
        watch(m_button);
        m_button.show();
        EXPECT_TRUE(QTest::qWaitForWindowExposed(&m_button));
    }
    // A shortcut's click comes some time after its press.
    void watch(QPushButton& button) {
        QObject::connect(&button, &QPushButton::pressed, &button,
                         [this] { m_wasWaiting = m_waiter.isWaiting(); });
        QObject::connect(&button, &QPushButton::clicked, &button, [this] { ++m_clicks; });
    }
    // Begins to count inside of the wait, later than the wait itself; and an event later than a timer of that
    // time the waiter has done what it does then, though both timers be due at once.
    void whenTheWaitIsLong(std::function<void()> action) {
        const auto act = [this, action = std::move(action)] {
            action();
            answer();
        };
        QTimer::singleShot(0, &m_waiter, [this, act] {
            QTimer::singleShot(ShareWaiter::kInputPatience + 100ms, &m_waiter,
                               [this, act] { QTimer::singleShot(0, &m_waiter, act); });
        });
    }
    static void clickOn(QPushButton& button) {
        QTest::mouseClick(button.windowHandle(), Qt::LeftButton, {}, button.rect().center());
    }
    void click() { clickOn(m_button); }
    // For an answer that does not come, in a wait of its own that lets events run.
    void waitInVain() {
        m_here.receive();
        EXPECT_EQ(wait(100ms), Waited::TimeOver);
    }
    static bool isCursorBusy() {
        const QCursor* cursor = QGuiApplication::overrideCursor();
        return cursor != nullptr && cursor->shape() == Qt::BusyCursor;
    }
    bool isClicked() {
        return QTest::qWaitFor([this] { return m_clicks > 0; });
    }

    QPushButton m_button{QStringLiteral("&Save")};
    std::optional<bool> m_wasWaiting; // when it was pressed
    int m_clicks = 0;
};

TEST_F(InputTest, IsHeldInALongWaitAndHandedOutAfterwards) {
    whenTheWaitIsLong([this] { click(); });
    EXPECT_EQ(wait(), Waited::Ready);
    EXPECT_EQ(m_wasWaiting, std::nullopt);
    ASSERT_TRUE(isClicked());
    EXPECT_EQ(m_wasWaiting, false);
}

TEST_F(InputTest, IsNotHandedOutInsideOfTheNextWait) {
    whenTheWaitIsLong([this] { click(); });
    EXPECT_EQ(wait(), Waited::Ready);
    waitInVain();
    EXPECT_EQ(m_wasWaiting, std::nullopt);
    EXPECT_TRUE(isClicked());
}

// Two messages that are played one after the other.
TEST_F(InputTest, IsNotHandedOutInsideOfAWaitThatOneOfItBegins) {
    QPushButton other;
    watch(other);
    other.show();
    EXPECT_TRUE(QTest::qWaitForWindowExposed(&other));
    QObject::connect(&m_button, &QPushButton::clicked, &m_button, [this] { waitInVain(); });
    whenTheWaitIsLong([&] {
        click();
        clickOn(other);
    });
    EXPECT_EQ(wait(), Waited::Ready);
    EXPECT_TRUE(QTest::qWaitFor([this] { return m_clicks == 2; }));
    EXPECT_EQ(m_wasWaiting, false);
}

TEST_F(InputTest, IsNotHandedOutInsideOfAWaitThatBelatedWorkBegins) {
    whenTheWaitIsLong([this] {
        click();
        m_waiter.afterWaiting([this] { waitInVain(); });
    });
    EXPECT_EQ(wait(), Waited::Ready);
    ASSERT_TRUE(isClicked());
    EXPECT_EQ(m_wasWaiting, false);
}

TEST_F(InputTest, IsHeldUnderABusyCursor) {
    whenTheWaitIsLong([] { EXPECT_TRUE(isCursorBusy()); });
    EXPECT_EQ(wait(), Waited::Ready);
    EXPECT_TRUE(QTest::qWaitFor([] { return !isCursorBusy(); }));
}

// A message is read in hundreds of them.
TEST_F(InputTest, KeepsItsCursorFromOnePartOfAWaitToTheNext) {
    QElapsedTimer waited;
    waited.start();
    while (!waited.hasExpired(ShareWaiter::kInputPatience.count() + 100))
        EXPECT_TRUE(m_waiter.pass(10ms));
    for (int part = 0; part < 10; ++part) {
        EXPECT_TRUE(isCursorBusy());
        EXPECT_TRUE(m_waiter.pass(10ms));
    }
    EXPECT_TRUE(QTest::qWaitFor([] { return !isCursorBusy(); }));
}

TEST_F(InputTest, HasItsCursorWhileADialogThatComesUpMeanwhileCanBeAnswered) {
    QDialog dialog;
    whenTheWaitIsLong([&] {
        dialog.open();
        EXPECT_TRUE(QTest::qWaitFor([] { return !isCursorBusy(); }));
        dialog.close();
        EXPECT_TRUE(QTest::qWaitFor(isCursorBusy));
    });
    EXPECT_EQ(wait(), Waited::Ready);
    EXPECT_TRUE(QTest::qWaitFor([] { return !isCursorBusy(); }));
}

TEST_F(InputTest, HasItsCursorAfterAWaitThatEndsUnderADialog) {
    QDialog dialog;
    whenTheWaitIsLong([&] {
        dialog.open();
        EXPECT_TRUE(QTest::qWaitFor([] { return !isCursorBusy(); }));
    });
    EXPECT_EQ(wait(), Waited::Ready);
    dialog.close();
    QCoreApplication::processEvents();
    EXPECT_FALSE(isCursorBusy());
}

TEST_F(InputTest, OfAShortcutIsHeldToo) {
    EXPECT_TRUE(QTest::qWaitForWindowActive(&m_button));
    whenTheWaitIsLong([this] {
        QTest::keyClick(m_button.windowHandle(), Qt::Key_S, Qt::AltModifier);
        QCoreApplication::processEvents(); // it comes as the window system's events do
    });
    EXPECT_EQ(wait(), Waited::Ready);
    EXPECT_EQ(m_wasWaiting, std::nullopt);
    ASSERT_TRUE(isClicked());
    EXPECT_EQ(m_wasWaiting, false);
}

TEST_F(InputTest, ReachesAMenuThatIsOpen) {
    QMenu menu;
    bool wasWaiting = false;
    menu.addAction(QStringLiteral("Close"), &menu, [&] { wasWaiting = m_waiter.isWaiting(); });
    whenTheWaitIsLong([&menu] {
        menu.popup({});
        EXPECT_TRUE(QTest::qWaitForWindowExposed(&menu));
        QTest::mouseClick(menu.windowHandle(), Qt::LeftButton, {}, menu.rect().center());
    });
    EXPECT_EQ(wait(), Waited::Ready);
    EXPECT_TRUE(wasWaiting);
}

TEST_F(InputTest, ReachesADialogThatComesUpMeanwhile) {
    QDialog dialog;
    QPushButton ok(QStringLiteral("OK"), &dialog);
    watch(ok);
    whenTheWaitIsLong([&] {
        dialog.open();
        EXPECT_TRUE(QTest::qWaitForWindowExposed(&dialog));
        QTest::mouseClick(dialog.windowHandle(), Qt::LeftButton, {}, ok.geometry().center());
    });
    EXPECT_EQ(wait(), Waited::Ready);
    EXPECT_EQ(m_wasWaiting, true);
}

TEST_F(InputTest, OfADialogThatWaitsIsHeld) {
    QDialog dialog;
    QPushButton ok(QStringLiteral("OK"), &dialog);
    watch(ok);
    dialog.open();
    EXPECT_TRUE(QTest::qWaitForWindowExposed(&dialog));
    whenTheWaitIsLong(
        [&] { QTest::mouseClick(dialog.windowHandle(), Qt::LeftButton, {}, ok.geometry().center()); });
    EXPECT_EQ(wait(), Waited::Ready);
    EXPECT_EQ(m_wasWaiting, std::nullopt);
    ASSERT_TRUE(isClicked());
    EXPECT_EQ(m_wasWaiting, false);
}

TEST_F(InputTest, OfADialogBehindOneThatIsClosedIsHeld) {
    QDialog behind;
    QPushButton ok(QStringLiteral("OK"), &behind);
    watch(ok);
    behind.open();
    EXPECT_TRUE(QTest::qWaitForWindowExposed(&behind));
    QDialog front(&behind);
    front.open();
    EXPECT_TRUE(QTest::qWaitForWindowExposed(&front));
    whenTheWaitIsLong([&] {
        front.close();
        QTest::mouseClick(behind.windowHandle(), Qt::LeftButton, {}, ok.geometry().center());
    });
    EXPECT_EQ(wait(), Waited::Ready);
    EXPECT_EQ(m_wasWaiting, std::nullopt);
    ASSERT_TRUE(isClicked());
    EXPECT_EQ(m_wasWaiting, false);
}

TEST_F(InputTest, IsDroppedForAWindowThatADialogCovers) {
    whenTheWaitIsLong([this] { click(); });
    EXPECT_EQ(wait(), Waited::Ready);
    QDialog dialog;
    dialog.open();
    EXPECT_TRUE(QTest::qWaitForWindowExposed(&dialog));
    QCoreApplication::processEvents(); // hands out what is not dropped
    dialog.reject();
    m_here.receive();
    EXPECT_EQ(wait(1ms), Waited::TimeOver); // its end hands out as well
    QCoreApplication::processEvents();
    EXPECT_EQ(m_wasWaiting, std::nullopt);
    click();
    EXPECT_TRUE(isClicked());
    EXPECT_EQ(m_clicks, 1);
}

TEST_F(InputTest, ForAWindowThatIsGoneIsDropped) {
    auto gone = std::make_unique<QPushButton>();
    gone->show();
    EXPECT_TRUE(QTest::qWaitForWindowExposed(gone.get()));
    whenTheWaitIsLong([&gone] { QTest::mouseClick(gone->windowHandle(), Qt::LeftButton); });
    EXPECT_EQ(wait(), Waited::Ready);
    gone.reset();
    click();
    EXPECT_TRUE(isClicked());
}

} // namespace
} // namespace app
