// SPDX-FileCopyrightText: 2026 The qmClient authors
// SPDX-License-Identifier: GPL-3.0-or-later
#include "platform/shell/NotificationAreaWatch.h"

#include "tests/platform/shell/FakeTrayHosts.h"

#include <gtest/gtest.h>

#include <utility>

namespace shell {
namespace {

using namespace std::chrono_literals;

class FakeTimer : public DelayTimer {
public:
    void start(std::chrono::milliseconds delay, std::function<void()> call) override {
        m_delay = delay;
        m_call = std::move(call);
    }
    void stop() override { m_call = nullptr; }
    bool isRunning() const { return m_call != nullptr; }
    std::chrono::milliseconds delay() const { return m_delay; }
    void fire() { std::exchange(m_call, nullptr)(); }

private:
    std::chrono::milliseconds m_delay{};
    std::function<void()> m_call;
};

class NotificationAreaWatchTest : public ::testing::Test {
protected:
    NotificationAreaWatchTest() {
        QObject::connect(&m_watch, &NotificationAreaWatch::missing, &m_watch, [this] { ++m_told; });
    }

    FakeTrayHosts m_hosts;
    FakeTimer m_timer;
    NotificationAreaWatch m_watch{m_hosts, m_timer};
    int m_told = 0;
};

TEST_F(NotificationAreaWatchTest, TellsOnceAfterFifteenSecondsWithoutAnArea) {
    ASSERT_TRUE(m_timer.isRunning());
    EXPECT_EQ(m_timer.delay(), 15s);
    EXPECT_EQ(m_told, 0);
    m_timer.fire();
    EXPECT_EQ(m_told, 1);
    EXPECT_TRUE(m_watch.isMissing());
    m_hosts.become(TrayHostKind::None);
    EXPECT_FALSE(m_timer.isRunning());
}

TEST_F(NotificationAreaWatchTest, SaysNothingWhenAnAreaComesInTime) {
    m_hosts.become(TrayHostKind::StatusNotifier);
    EXPECT_FALSE(m_timer.isRunning());
    EXPECT_FALSE(m_watch.isMissing());
}

TEST_F(NotificationAreaWatchTest, WaitsAnewWhenTheAreaGoes) {
    m_hosts.become(TrayHostKind::Embedding);
    m_hosts.become(TrayHostKind::None);
    ASSERT_TRUE(m_timer.isRunning());
    m_timer.fire();
    EXPECT_EQ(m_told, 1);
}

TEST_F(NotificationAreaWatchTest, TellsAgainAfterTheNextAbsence) {
    m_timer.fire();
    m_hosts.become(TrayHostKind::Embedding);
    EXPECT_FALSE(m_watch.isMissing());
    m_hosts.become(TrayHostKind::None);
    m_timer.fire();
    EXPECT_EQ(m_told, 2);
}

TEST_F(NotificationAreaWatchTest, TellsWhenAMissingAreaReturns) {
    int returned = 0;
    QObject::connect(&m_watch, &NotificationAreaWatch::returned, &m_watch, [&] { ++returned; });
    m_hosts.become(TrayHostKind::StatusNotifier);
    EXPECT_EQ(returned, 0);
    m_hosts.become(TrayHostKind::None);
    m_timer.fire();
    m_hosts.become(TrayHostKind::StatusNotifier);
    EXPECT_EQ(returned, 1);
    EXPECT_FALSE(m_watch.isMissing());
}

} // namespace
} // namespace shell
