// SPDX-FileCopyrightText: 2026 The qmClient authors
// SPDX-License-Identifier: GPL-3.0-or-later
#include "tests/app/ShareWaiterTest.h"

#include <QCoreApplication>
#include <QTest>
#include <QTimer>

#include <thread>

namespace app {
namespace {

using namespace std::chrono_literals;
using share::Waited;

TEST_F(ShareWaiterTest, LetsEventsRunUntilTheAnswerComes) {
    EXPECT_TRUE(m_waiter.mayWait());
    QTimer::singleShot(0, &m_waiter, [this] {
        EXPECT_TRUE(m_waiter.isWaiting());
        EXPECT_FALSE(m_waiter.mayWait());
        answer();
    });
    EXPECT_EQ(wait(), Waited::Ready);
    EXPECT_FALSE(m_waiter.isWaiting());
    EXPECT_TRUE(m_waiter.mayWait());
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
    static constexpr auto kStandstill = kPart * (share::kPartsOfAWait / 2);
    QTimer::singleShot(0, &m_waiter, [] { std::this_thread::sleep_for(kStandstill); });
    const auto start = std::chrono::steady_clock::now();
    EXPECT_EQ(wait(kPart * share::kPartsOfAWait), Waited::TimeOver);
    // It may cost the part in which it began and the one in which it ended.
    EXPECT_GE(std::chrono::steady_clock::now() - start, kStandstill + kPart * (share::kPartsOfAWait - 2));
}

TEST_F(ShareWaiterTest, IsCancelledByTheEndOfTheProgram) {
    QTimer::singleShot(0, &m_waiter, [this] { m_waiter.endWaits(); });
    EXPECT_EQ(wait(), Waited::Cancelled);
    answer();
    EXPECT_EQ(wait(), Waited::Cancelled);
    EXPECT_TRUE(m_waiter.isEnded());
    EXPECT_FALSE(m_waiter.mayWait());
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

} // namespace
} // namespace app
