// SPDX-FileCopyrightText: 2026 The qmClient authors
// SPDX-License-Identifier: GPL-3.0-or-later
#include "tests/errors/ErrorDialogWorld.h"

namespace errors {
namespace {

TEST_F(frmErrorTest, AFreshRunOpensCollapsed) {
    const auto dialog = make();
    show(*dialog, [&] {
        EXPECT_EQ(dialog->Height().value, 2460);
        EXPECT_GE(dialog->height(), 164);
        EXPECT_FALSE(control<QPlainTextEdit>(*dialog, "txtError")->isVisible());
        EXPECT_EQ(caption(*dialog, "cmdDetails"), "Details >>");
        dialog->close();
    });
}

TEST_F(frmErrorTest, DetailsExpandAndTheNextFailureOpensExpanded) {
    const auto dialog = make();
    show(*dialog, [&] {
        click(*dialog, "cmdDetails");
        EXPECT_EQ(dialog->Height().value, 4965);
        EXPECT_GE(dialog->height(), 331);
        EXPECT_TRUE(control<QPlainTextEdit>(*dialog, "txtError")->isVisible());
        EXPECT_EQ(caption(*dialog, "cmdDetails"), "Details <<");
        click(*dialog, "cmdIgnore");
    });
    fail(*dialog, "another one");
    show(*dialog, [&] {
        EXPECT_EQ(dialog->Height().value, 4965);
        dialog->close();
    });
}

TEST_F(frmErrorTest, TheStateOfTheDetailsOutlivesTheDialog) {
    {
        const auto dialog = make();
        show(*dialog, [&] {
            click(*dialog, "cmdDetails");
            dialog->close();
        });
    }
    EXPECT_EQ(make()->Height(), frmError::kExpandedHeight);
}

TEST_F(frmErrorTest, CollapsingAgainForgetsTheFlagAndTheRoom) {
    const auto dialog = make();
    show(*dialog, [&] {
        const int before = dialog->height();
        click(*dialog, "cmdDetails");
        click(*dialog, "cmdDetails");
        EXPECT_EQ(dialog->Height().value, 2460);
        EXPECT_EQ(dialog->height(), before);
        EXPECT_EQ(caption(*dialog, "cmdDetails"), "Details >>");
        dialog->close();
    });
    EXPECT_FALSE(m_state.detailsExpanded);
}

} // namespace
} // namespace errors
