// SPDX-FileCopyrightText: 2026 The qmClient authors
// SPDX-License-Identifier: GPL-3.0-or-later
#include "app/Application.h"

#include "platform/basic/RuntimeError.h"
#include "platform/forms/Timer.h"
#include "tests/errors/RecordingErrorHandler.h"

#include <QTest>
#include <QTimer>

#include <gtest/gtest.h>

#include <new>

namespace app {
namespace {

Application& application() {
    return *qobject_cast<Application*>(QCoreApplication::instance());
}

class ApplicationTest : public testing::Test {
protected:
    ApplicationTest() { application().reportTo(&m_errorHandler); }
    ~ApplicationTest() override { application().reportTo(nullptr); }

    errors::RecordingErrorHandler m_errorHandler;
};

// Each of the two is an event of its own of the same loop.
TEST_F(ApplicationTest, AFailureInAnEventsHandlerIsReportedAndTheLoopGoesOn) {
    QTimer::singleShot(0, [] { throw basic::RuntimeError(basic::kObjectNotSet, "no popup"); });
    QTimer::singleShot(1, [] { throw std::bad_alloc(); });
    QTimer::singleShot(2, [] { QCoreApplication::exit(42); });
    EXPECT_EQ(QCoreApplication::exec(), 42);
    ASSERT_EQ(m_errorHandler.reports.size(), 2U);
    EXPECT_EQ(m_errorHandler.reports[0].module, "Application");
    EXPECT_EQ(m_errorHandler.reports[0].procedure, "notify");
    EXPECT_EQ(m_errorHandler.reports[0].number, 91);
    EXPECT_EQ(m_errorHandler.reports[0].description, "no popup");
    EXPECT_EQ(m_errorHandler.reports[1].number, 7);
}

TEST_F(ApplicationTest, ATimerWhoseHandlerFailedTicksOn) {
    forms::Timer timer;
    int ticks = 0;
    QObject::connect(&timer, &forms::Timer::ThatTime, [&] {
        if (++ticks == 1)
            throw basic::RuntimeError(basic::kObjectNotSet);
    });
    timer.SetInterval(1);
    EXPECT_TRUE(QTest::qWaitFor([&] { return ticks > 1; }));
    EXPECT_EQ(m_errorHandler.reports.size(), 1U);
}

TEST_F(ApplicationTest, EventsReachTheirReceivers) {
    int ticks = 0;
    QTimer::singleShot(0, [&] {
        ++ticks;
        QCoreApplication::exit();
    });
    QCoreApplication::exec();
    EXPECT_EQ(ticks, 1);
    EXPECT_TRUE(m_errorHandler.reports.empty());
}

// What the session manager's "die" comes as.
TEST_F(ApplicationTest, ASessionThatEndsIsPassedOnAndTheLoopGoesOn) {
    int asked = 0;
    const auto connection = QObject::connect(&application(), &Application::askedToQuit, [&] { ++asked; });
    QTimer::singleShot(0, [] { QCoreApplication::quit(); });
    QTimer::singleShot(1, [] { QCoreApplication::exit(42); });
    EXPECT_EQ(QCoreApplication::exec(), 42);
    QObject::disconnect(connection);
    EXPECT_EQ(asked, 1);
}

} // namespace
} // namespace app

int main(int argc, char** argv) {
    testing::InitGoogleTest(&argc, argv);
    if (!qEnvironmentVariableIsSet("QT_QPA_PLATFORM"))
        qputenv("QT_QPA_PLATFORM", "offscreen");
    const app::Application application(argc, argv);
    return RUN_ALL_TESTS();
}
