// SPDX-FileCopyrightText: 2026 The qmClient authors
// SPDX-License-Identifier: GPL-3.0-or-later
#include "platform/forms/TransientParent.h"

#include <QApplication>
#include <QDialog>
#include <QWindow>

#include <gtest/gtest.h>

#include <memory>

namespace forms {
namespace {

TEST(TransientParent, ADialogStandsOverTheWindowOfAWidgetUntilThatGoes) {
    auto window = std::make_unique<QWidget>();
    const auto* inside = new QWidget(window.get());
    window->show();
    QDialog dialog;
    standOver(dialog, inside);
    EXPECT_EQ(dialog.parentWidget(), nullptr);
    EXPECT_EQ(dialog.windowHandle()->transientParent(), window->windowHandle());
    dialog.show();
    window.reset();
    EXPECT_EQ(dialog.windowHandle()->transientParent(), nullptr);
    EXPECT_TRUE(dialog.isVisible());
}

TEST(TransientParent, ADialogStandsOverTheWindowThatIsActiveNow) {
    QWidget first;
    QWidget second;
    QDialog dialog;
    for (QWidget* window : {&first, &second}) {
        window->show();
        QApplication::setActiveWindow(window);
        standOverTheActiveWindow(dialog);
        EXPECT_EQ(dialog.windowHandle()->transientParent(), window->windowHandle());
    }
}

TEST(TransientParent, ADialogStandsOverNoWindowWhereThereIsNoOther) {
    QWidget window;
    window.show();
    QDialog dialog;
    for (const QWidget* none : {static_cast<const QWidget*>(nullptr), static_cast<const QWidget*>(&dialog)}) {
        standOver(dialog, &window);
        standOver(dialog, none);
        EXPECT_EQ(dialog.windowHandle()->transientParent(), nullptr);
    }
}

} // namespace
} // namespace forms
