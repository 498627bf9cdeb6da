// SPDX-FileCopyrightText: 2026 The qmClient authors
// SPDX-License-Identifier: GPL-3.0-or-later
#include "dialogs/ServerDialog.h"

#include "tests/dialogs/ServerWorld.h"

#include <QApplication>
#include <QLineEdit>
#include <QTest>
#include <QTimer>

#include <gtest/gtest.h>

namespace dialogs {
namespace {

// What the user does once the dialog is up.
void whenShown(const std::function<void(QWidget& dialog)>& act) {
    QTimer::singleShot(0, qApp, [act] { act(*QApplication::activeModalWidget()); });
}

TEST(ServerDialog, AnswersWhatTheUserTyped) {
    ServerWorld world;
    ServerDialog dialog(world.services());
    whenShown([](QWidget& form) {
        auto* field = form.findChild<QLineEdit*>(u"txtServer"_qs);
        EXPECT_EQ(field->text(), u"old"_qs);
        field->setText(u"\\\\srv01"_qs);
        QTest::keyClick(field, Qt::Key_Return);
    });
    EXPECT_EQ(dialog.select(nullptr, u"old"_qs), u"\\\\srv01"_qs);
}

TEST(ServerDialog, AnswersNothingWhenCancelledAndBeginsAnewTheNextTime) {
    ServerWorld world;
    ServerDialog dialog(world.services());
    QWidget owner;
    owner.show();
    for (int time = 0; time < 2; ++time) {
        whenShown([](QWidget& form) {
            auto* field = form.findChild<QLineEdit*>(u"txtServer"_qs);
            EXPECT_EQ(field->text(), u"old"_qs);
            field->setText(u"srv01"_qs);
            QTest::keyClick(field, Qt::Key_Escape);
        });
        EXPECT_EQ(dialog.select(&owner, u"old"_qs), std::nullopt);
    }
}

} // namespace
} // namespace dialogs
