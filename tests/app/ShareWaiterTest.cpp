// SPDX-FileCopyrightText: 2026 The qmClient authors
// SPDX-License-Identifier: GPL-3.0-or-later
#include "app/ShareWaiter.h"

#include "platform/share/smb/PacketSocket.h"

#include <QCoreApplication>
#include <QDialog>
#include <QMenu>
#include <QPushButton>
#include <QTest>
#include <QTimer>

#include <gtest/gtest.h>

#include <chrono>
#include <memory>
#include <optional>
#include <thread>

namespace app {
namespace {

using namespace std::chrono_literals;
using share::smb::Waited;

class ShareWaiterTest : public testing::Test {
protected:
    void answer() { m_there.send(std::vector<std::byte>(1)); }
    Waited wait(std::chrono::milliseconds atMost = 60min) {
        return m_waiter.untilReadable(m_here.descriptor(), atMost);
    }

    std::pair<share::smb::PacketSocket, share::smb::PacketSocket> m_ends = share::smb::PacketSocket::pair();
    share::smb::PacketSocket& m_here = m_ends.first;
    share::smb::PacketSocket& m_there = m_ends.second;
    ShareWaiter m_waiter;
};

TEST_F(ShareWaiterTest, LetsEventsRunUntilTheAnswerComes) {
    QTimer::singleShot(0, &m_waiter, [this] {
        EXPECT_TRUE(m_waiter.isWaiting());
        answer();
    });
    EXPECT_EQ(wait(), Waited::Ready);
    EXPECT_FALSE(m_waiter.isWaiting());
}

TEST_F(ShareWaiterTest, EndsAtTheDeadline) {
    EXPECT_EQ(wait(1ms), Waited::TimeOver);
}

// Longer than the wait may take.
TEST_F(ShareWaiterTest, HearsAnAnswerThatComesAfterAStandstill) {
    QTimer::singleShot(0, &m_waiter, [this] {
        std::this_thread::sleep_for(300ms);
        QTimer::singleShot(10ms, &m_waiter, [this] { answer(); });
    });
    EXPECT_EQ(wait(200ms), Waited::Ready);
}

TEST_F(ShareWaiterTest, DoesNotCountTheTimeInWhichTheProgramStoodStill) {
    constexpr auto kPart = 20ms;
    static constexpr auto kStandstill = kPart * (share::smb::kPartsOfAWait / 2);
    QTimer::singleShot(0, &m_waiter, [] { std::this_thread::sleep_for(kStandstill); });
    const auto start = std::chrono::steady_clock::now();
    EXPECT_EQ(wait(kPart * share::smb::kPartsOfAWait), Waited::TimeOver);
    // It may cost the part in which it began and the one in which it ended.
    EXPECT_GE(std::chrono::steady_clock::now() - start,
              kStandstill + kPart * (share::smb::kPartsOfAWait - 2));
}

TEST_F(ShareWaiterTest, IsCancelledByTheEndOfTheProgram) {
    QTimer::singleShot(0, &m_waiter, [this] { m_waiter.endWaits(); });
    EXPECT_EQ(wait(), Waited::Cancelled);
    answer();
    EXPECT_EQ(wait(), Waited::Cancelled);
    EXPECT_TRUE(m_waiter.isEnded());
}

TEST_F(ShareWaiterTest, IsCancelledWhenTheEventLoopsEnd) {
    Waited waited = Waited::Ready;
    QTimer::singleShot(0, &m_waiter, [&] {
        QTimer::singleShot(0, &m_waiter, [] { QCoreApplication::quit(); });
        waited = wait();
    });
    QCoreApplication::exec();
    EXPECT_EQ(waited, Waited::Cancelled);
}

TEST_F(ShareWaiterTest, DoesNotWaitInsideOfAWait) {
    Waited inner = Waited::Ready;
    QTimer::singleShot(0, &m_waiter, [&] {
        inner = wait();
        answer();
    });
    EXPECT_EQ(wait(), Waited::Ready);
    EXPECT_EQ(inner, Waited::Cancelled);
}

TEST_F(ShareWaiterTest, LetsEventsRunInEachPartOfAWaitForAMessage) {
    bool isDone = false;
    QTimer::singleShot(0, &m_waiter, [&] { isDone = m_waiter.isWaiting(); });
    EXPECT_TRUE(m_waiter.pass(10ms));
    EXPECT_TRUE(isDone);
    EXPECT_FALSE(m_waiter.isWaiting());
}

TEST_F(ShareWaiterTest, CancelsAWaitForAMessageAtTheEndOfTheProgram) {
    QTimer::singleShot(0, &m_waiter, [this] { m_waiter.endWaits(); });
    EXPECT_FALSE(m_waiter.pass(60min));
    EXPECT_FALSE(m_waiter.pass(60min));
}

TEST_F(ShareWaiterTest, CancelsAWaitForAMessageWhenTheEventLoopsEnd) {
    bool isOn = true;
    QTimer::singleShot(0, &m_waiter, [&] {
        QTimer::singleShot(0, &m_waiter, [] { QCoreApplication::quit(); });
        isOn = m_waiter.pass(60min);
    });
    QCoreApplication::exec();
    EXPECT_FALSE(isOn);
}

TEST_F(ShareWaiterTest, LetsNothingRunInAWaitForAMessageInsideOfAWait) {
    bool isDone = false;
    QTimer::singleShot(0, &m_waiter, [&] {
        QTimer::singleShot(0, &m_waiter, [&isDone] { isDone = true; });
        EXPECT_TRUE(m_waiter.pass(10ms));
        EXPECT_FALSE(isDone);
        answer();
    });
    EXPECT_EQ(wait(), Waited::Ready);
}

TEST_F(ShareWaiterTest, RunsWorkAtOnceWhenNobodyWaits) {
    bool isDone = false;
    m_waiter.afterWaiting([&] { isDone = true; });
    EXPECT_TRUE(isDone);
}

TEST_F(ShareWaiterTest, RunsWorkThatCameMeanwhileInItsOrderAfterwards) {
    std::vector<int> order;
    QTimer::singleShot(0, &m_waiter, [&] {
        for (const int number : {1, 2})
            m_waiter.afterWaiting([&order, number] { order.push_back(number); });
        answer();
    });
    EXPECT_EQ(wait(), Waited::Ready);
    EXPECT_TRUE(order.empty());
    EXPECT_TRUE(QTest::qWaitFor([&] { return order.size() == 2; }));
    EXPECT_EQ(order, (std::vector{1, 2}));
}

TEST_F(ShareWaiterTest, DoesNotRunSuchWorkInsideOfTheNextWait) {
    bool isDone = false;
    QTimer::singleShot(0, &m_waiter, [&] {
        m_waiter.afterWaiting([&] { isDone = true; });
        answer();
    });
    EXPECT_EQ(wait(), Waited::Ready);
    m_here.receive();
    EXPECT_EQ(wait(100ms), Waited::TimeOver); // longer than it sleeps: events run
    EXPECT_FALSE(isDone);
    EXPECT_TRUE(QTest::qWaitFor([&] { return isDone; }));
}

TEST_F(ShareWaiterTest, DropsSuchWorkAtTheEndOfTheProgram) {
    bool isDone = false;
    QTimer::singleShot(0, &m_waiter, [&] {
        m_waiter.afterWaiting([&] { isDone = true; });
        m_waiter.endWaits();
    });
    EXPECT_EQ(wait(), Waited::Cancelled);
    QCoreApplication::processEvents();
    EXPECT_FALSE(isDone);
}

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
    void click() { QTest::mouseClick(m_button.windowHandle(), Qt::LeftButton, {}, m_button.rect().center()); }
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
    m_here.receive();
    EXPECT_EQ(wait(100ms), Waited::TimeOver);
    EXPECT_EQ(m_wasWaiting, std::nullopt);
    EXPECT_TRUE(isClicked());
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
