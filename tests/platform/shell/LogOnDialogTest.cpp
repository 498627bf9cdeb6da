// SPDX-FileCopyrightText: 2026 The qmClient authors
// SPDX-License-Identifier: GPL-3.0-or-later
#include "platform/shell/LogOnDialog.h"

#include <QCheckBox>
#include <QLabel>
#include <QLineEdit>
#include <QPushButton>
#include <QTest>

#include <gtest/gtest.h>

namespace shell {
namespace {

const LogOnTexts kTexts{u"Log on to srv01"_qs, u"User"_qs,       u"Domain"_qs, u"Password"_qs,
                        u"Remember"_qs,        u"No keyring"_qs, u"OK"_qs,     u"Cancel"_qs};

void type(const QDialog& dialog, const QString& field, const QString& text) {
    QTest::keyClicks(dialog.findChild<QLineEdit*>(field), text);
}

TEST(LogOnDialog, AnswersWhatWasTypedByKeyboardAlone) {
    LogOnDialog dialog(kTexts, {}, {}, Remembering::Offered);
    dialog.show();
    EXPECT_EQ(dialog.focusWidget()->objectName(), u"txtUser"_qs);
    QTest::keyClicks(dialog.focusWidget(), u"mbxuser"_qs);
    QTest::keyClick(dialog.focusWidget(), Qt::Key_Tab);
    QTest::keyClicks(dialog.focusWidget(), u"QMTEST"_qs);
    QTest::keyClick(dialog.focusWidget(), Qt::Key_Tab);
    QTest::keyClicks(dialog.focusWidget(), u"p@ss:w/o%r\\d"_qs);
    QTest::keyClick(dialog.focusWidget(), Qt::Key_Return);
    EXPECT_EQ(dialog.result(), QDialog::Accepted);
    EXPECT_EQ(dialog.user(), u"mbxuser"_qs);
    EXPECT_EQ(dialog.domain(), u"QMTEST"_qs);
    EXPECT_EQ(dialog.password(), u"p@ss:w/o%r\\d"_qs);
}

TEST(LogOnDialog, NeverShowsThePassword) {
    LogOnDialog dialog(kTexts, {}, {}, Remembering::Offered);
    type(dialog, u"txtPassword"_qs, u"secret"_qs);
    EXPECT_EQ(dialog.findChild<QLineEdit*>(u"txtPassword"_qs)->displayText().contains(u"secret"_qs), false);
}

TEST(LogOnDialog, WantsAUser) {
    LogOnDialog dialog(kTexts, {}, {}, Remembering::Offered);
    auto* ok = dialog.findChild<QPushButton*>(u"OKButton"_qs);
    EXPECT_FALSE(ok->isEnabled());
    type(dialog, u"txtUser"_qs, u"m"_qs);
    EXPECT_TRUE(ok->isEnabled());
}

TEST(LogOnDialog, BeginsAtThePasswordOfAUserWhoIsKnown) {
    LogOnDialog dialog(kTexts, u"mbxuser"_qs, u"QMTEST"_qs, Remembering::Offered);
    dialog.show();
    EXPECT_EQ(dialog.focusWidget()->objectName(), u"txtPassword"_qs);
    EXPECT_EQ(dialog.user(), u"mbxuser"_qs);
    EXPECT_EQ(dialog.domain(), u"QMTEST"_qs);
    QTest::keyClick(&dialog, Qt::Key_Escape);
    EXPECT_EQ(dialog.result(), QDialog::Rejected);
}

TEST(LogOnDialog, OffersToRememberAndIsNotToldToUnlessSomebodyWantsIt) {
    LogOnDialog dialog(kTexts, {}, {}, Remembering::Offered);
    auto* remember = dialog.findChild<QCheckBox*>(u"chkRemember"_qs);
    EXPECT_TRUE(remember->isEnabled());
    EXPECT_FALSE(dialog.isToBeRemembered());
    remember->click();
    EXPECT_TRUE(dialog.isToBeRemembered());
    EXPECT_EQ(dialog.findChild<QLabel*>(u"lblCannotRemember"_qs), nullptr);
}

TEST(LogOnDialog, KeepsOnRememberingWhatWasRemembered) {
    const LogOnDialog dialog(kTexts, {}, {}, Remembering::Chosen);
    EXPECT_TRUE(dialog.isToBeRemembered());
}

TEST(LogOnDialog, SaysWhyItCannotRemember) {
    const LogOnDialog dialog(kTexts, {}, {}, Remembering::Impossible);
    EXPECT_FALSE(dialog.findChild<QCheckBox*>(u"chkRemember"_qs)->isEnabled());
    EXPECT_EQ(dialog.findChild<QLabel*>(u"lblCannotRemember"_qs)->text(), u"No keyring"_qs);
    EXPECT_FALSE(dialog.isToBeRemembered());
}

} // namespace
} // namespace shell
