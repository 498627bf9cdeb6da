// SPDX-FileCopyrightText: 2026 The qmClient authors
// SPDX-License-Identifier: GPL-3.0-or-later
#include "app/TerminationSignals.h"

#include <QSignalSpy>

#include <gtest/gtest.h>

namespace app {
namespace {

int g_caught = 0; // NOLINT(cppcoreguidelines-avoid-non-const-global-variables)

class TerminationSignalsTest : public testing::Test {
protected:
    TerminationSignalsTest() { ::sigaction(SIGHUP, nullptr, &m_former); }
    ~TerminationSignalsTest() override { ::sigaction(SIGHUP, &m_former, nullptr); }

private:
    struct sigaction m_former = {};
};

TEST_F(TerminationSignalsTest, ArriveAsEvents) {
    TerminationSignals signals;
    QSignalSpy received(&signals, &TerminationSignals::received);
    std::raise(SIGTERM);
    EXPECT_EQ(received.count(), 0);
    EXPECT_TRUE(received.wait());
    EXPECT_EQ(received.count(), 1);
}

TEST_F(TerminationSignalsTest, OneThatIsIgnoredStaysIgnored) {
    std::signal(SIGHUP, SIG_IGN);
    TerminationSignals signals;
    QSignalSpy received(&signals, &TerminationSignals::received);
    std::raise(SIGHUP);
    std::raise(SIGINT);
    EXPECT_TRUE(received.wait());
    EXPECT_EQ(received.count(), 1);
}

TEST_F(TerminationSignalsTest, FormerHandlersComeBack) {
    std::signal(SIGHUP, [](int) { ++g_caught; });
    { const TerminationSignals signals; }
    std::raise(SIGHUP);
    EXPECT_EQ(g_caught, 1);
}

} // namespace
} // namespace app
