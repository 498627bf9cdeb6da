// SPDX-FileCopyrightText: 2026 The qmClient authors
// SPDX-License-Identifier: GPL-3.0-or-later
#include "platform/forms/ModalState.h"

#include "tests/platform/basic/ErrorOf.h"

#include <QDialog>

#include <gtest/gtest.h>

namespace forms {
namespace {

TEST(ModalState, AWindowIsShownWhenNoModalOneIsUp) {
    QWidget window;
    EXPECT_FALSE(isModalUp());
    EXPECT_EQ(basic::errorOf([&] { showNonModal(window); }), 0);
    EXPECT_TRUE(window.isVisible());
}

TEST(ModalState, NoWindowIsShownWhileAModalOneIsUp) {
    QWidget window;
    QDialog modal;
    modal.setModal(true);
    modal.show();
    EXPECT_TRUE(isModalUp());
    EXPECT_EQ(basic::errorOf([&] { showNonModal(window); }), basic::kNonModalWhileModal);
    EXPECT_FALSE(window.isVisible());
    modal.close();
    EXPECT_EQ(basic::errorOf([&] { showNonModal(window); }), 0);
}

} // namespace
} // namespace forms
