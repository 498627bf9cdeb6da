// SPDX-FileCopyrightText: 2026 The qmClient authors
// SPDX-License-Identifier: GPL-3.0-or-later
// An unloading of which steps fail, with the real handler as the program wires it.
#include "tests/app/MainPlayerTest.h"
#include "tests/app/RealHandler.h"

namespace app {
namespace {

class UnloadFailureTest : public RealHandler, public MainPlayerTest {
protected:
    UnloadFailureTest() : MainPlayerTest(&m_handler) {}
};

TEST_F(UnloadFailureTest, EachStepThatFailsIsLoggedAndAllOthersAreTaken) {
    loadOne();
    play();
    QObject::connect(&*window, &frmMain::unloading, &*window, [this] { m_handler.askNobody(); });
    sound.fail("Stop");
    notificationArea.failing = 2; // NIM_DELETE
    const std::weak_ptr<jet::Connection> connection = window->state().currentConnection;
    bool isOver = false;
    QObject::connect(&*window, &frmMain::unloaded, &*window, [&] { isOver = true; });

    window->unload(UnloadMode::Code);
    EXPECT_TRUE(isOver);
    EXPECT_EQ(records(), 2);
    EXPECT_NE(log().find("clsWave.StopGraph"), std::string::npos);
    EXPECT_NE(log().find("Form_Unload"), std::string::npos);
    EXPECT_EQ(m_dialogsMade, 0);
    EXPECT_TRUE(connection.expired());
    EXPECT_EQ(window->state().config, nullptr);
    EXPECT_EQ(window->findChild<QDialog*>(QStringLiteral("frmCallDetails")), nullptr);
    notificationArea.failing.reset();
}

} // namespace
} // namespace app
