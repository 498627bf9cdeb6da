// SPDX-FileCopyrightText: 2026 The qmClient authors
// SPDX-License-Identifier: GPL-3.0-or-later
#include "platform/shell/LogOnDialog.h"

#include <QLineEdit>
#include <QPushButton>
#include <QTest>

#include <gtest/gtest.h>

namespace shell {
namespace {

const LogOnTexts kTexts{u"Log on to srv01"_qs, u"User"_qs, u"Domain"_qs,
                        u"Password"_qs,        u"OK"_qs,   u"Cancel"_qs};

void type(const QDialog& dialog, const QString& field, const QString& text) {
    QTest::keyClicks(dialog.findChild<QLineEdit*>(field), text);
}

TEST(LogOnDialog, AnswersWhatWasTypedByKeyboardAlone) {
    LogOnDialog dialog(kTexts, {}, {});
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
    LogOnDialog dialog(kTexts, {}, {});
    type(dialog, u"txtPassword"_qs, u"secret"_qs);
    EXPECT_EQ(dialog.findChild<QLineEdit*>(u"txtPassword"_qs)->displayText().contains(u"secret"_qs), false);
}

TEST(LogOnDialog, WantsAUser) {
    LogOnDialog dialog(kTexts, {}, {});
    auto* ok = dialog.findChild<QPushButton*>(u"OKButton"_qs);
    EXPECT_FALSE(ok->isEnabled());
    type(dialog, u"txtUser"_qs, u"m"_qs);
    EXPECT_TRUE(ok->isEnabled());
}

TEST(LogOnDialog, BeginsAtThePasswordOfAUserWhoIsKnown) {
    LogOnDialog dialog(kTexts, u"mbxuser"_qs, u"QMTEST"_qs);
    dialog.show();
    EXPECT_EQ(dialog.focusWidget()->objectName(), u"txtPassword"_qs);
    EXPECT_EQ(dialog.user(), u"mbxuser"_qs);
    EXPECT_EQ(dialog.domain(), u"QMTEST"_qs);
    QTest::keyClick(&dialog, Qt::Key_Escape);
    EXPECT_EQ(dialog.result(), QDialog::Rejected);
}

} // namespace
} // namespace shell
