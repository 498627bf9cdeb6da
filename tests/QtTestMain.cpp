// SPDX-FileCopyrightText: 2026 The qmClient authors
// SPDX-License-Identifier: GPL-3.0-or-later
//
// main() of every test program that needs an application object. Without a platform asked for, windows go to
// the offscreen one: a test run neither needs a display nor touches the one of the person who runs it.
// Settings and data paths of Qt are those of its test mode, never the real home directory's.

#include <QApplication>
#include <QStandardPaths>

#include <gmock/gmock.h>

int main(int argc, char** argv) {
    testing::InitGoogleMock(&argc, argv);
    if (!qEnvironmentVariableIsSet("QT_QPA_PLATFORM"))
        qputenv("QT_QPA_PLATFORM", "offscreen");
    QStandardPaths::setTestModeEnabled(true);
    const QApplication application(argc, argv);
    QApplication::setQuitOnLastWindowClosed(false);
    return RUN_ALL_TESTS();
}
