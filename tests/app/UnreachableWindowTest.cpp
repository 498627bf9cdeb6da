// SPDX-FileCopyrightText: 2026 The qmClient authors
// SPDX-License-Identifier: GPL-3.0-or-later
#include "tests/app/MainWorld.h"

#include <QDialog>

namespace app {
namespace {

class UnreachableWindowTest : public MainWorld {
protected:
    void SetUp() override {
        configure({12});
        mailbox(12).append(1);
        load();
    }
};

TEST_F(UnreachableWindowTest, ShowsItselfWithoutANotificationArea) {
    window->notificationAreaMissing();
    EXPECT_TRUE(window->isVisible());
}

TEST_F(UnreachableWindowTest, CloseBoxMinimisesWithoutANotificationArea) {
    window->notificationAreaMissing();
    window->close();
    EXPECT_TRUE(window->isVisible());
    EXPECT_TRUE(window->isMinimized());
}

TEST_F(UnreachableWindowTest, CloseBoxHidesOnceTheAreaIsBack) {
    window->notificationAreaMissing();
    window->notificationAreaReturned();
    window->close();
    EXPECT_FALSE(window->isVisible());
}

TEST_F(UnreachableWindowTest, WaitsForAModalWindowToGo) {
    QDialog dialog;
    dialog.setModal(true);
    dialog.show();
    window->notificationAreaMissing();
    Q_EMIT window->timer().ThatTime();
    EXPECT_FALSE(window->isVisible());
    dialog.hide();
    Q_EMIT window->timer().ThatTime();
    EXPECT_TRUE(window->isVisible());
    EXPECT_TRUE(errorHandler.reports.empty());
}

TEST_F(UnreachableWindowTest, StaysHiddenWhereTheAreaCameBackMeanwhile) {
    QDialog dialog;
    dialog.setModal(true);
    dialog.show();
    window->notificationAreaMissing();
    window->notificationAreaReturned();
    dialog.hide();
    Q_EMIT window->timer().ThatTime();
    EXPECT_FALSE(window->isVisible());
}

} // namespace
} // namespace app
