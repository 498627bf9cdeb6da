// SPDX-FileCopyrightText: 2026 The qmClient authors
// SPDX-License-Identifier: GPL-3.0-or-later
#include "tests/dialogs/OptionsTest.h"

#include <QLabel>
#include <QProgressBar>

#include <future>

namespace dialogs {
namespace {

using testing::ElementsAre;
using testing::IsEmpty;

TEST_F(frmOptionsTest, CheckBoxesAreToggledByMouse) {
    mailbox("12");
    mailbox("15");
    openWithList();
    showActive();
    clickCheckBox(1);
    EXPECT_THAT(rows(), ElementsAre("12|Sales|first floor", "+15|Sales|first floor"));
    clickCheckBox(1);
    EXPECT_THAT(rows(), ElementsAre("12|Sales|first floor", "15|Sales|first floor"));
}

TEST_F(frmOptionsTest, TheKeyboardReachesEverythingInOrder) {
    mailbox("12");
    mailbox("15");
    openWithList();
    showActive();
    control<QLineEdit>("txtServer").setFocus();
    std::vector<std::string> reached;
    for (int i = 0; i < 6; ++i) {
        const QWidget* focus = dialog->focusWidget();
        reached.push_back(focus == &view() ? "lsMailboxes" : focus->objectName().toStdString());
        QTest::keyClick(dialog->focusWidget(), Qt::Key_Tab);
    }
    EXPECT_THAT(reached,
                ElementsAre("txtServer", "cmdServer", "txtInterval", "lsMailboxes", "cmdOK", "cmdCancel"));
}

TEST_F(frmOptionsTest, CheckBoxesAreToggledByKeyboardAndReturnMeansOK) {
    mailbox("12");
    mailbox("15");
    openWithList();
    showActive();
    view().setFocus(Qt::TabFocusReason);
    QTest::keyClick(&view(), Qt::Key_Down);
    QTest::keyClick(&view(), Qt::Key_Space);
    EXPECT_THAT(rows(), ElementsAre("12|Sales|first floor", "+15|Sales|first floor"));
    QTest::keyClick(&view(), Qt::Key_Return);
    EXPECT_FALSE(dialog->Cancelled());
    EXPECT_THAT(savedMailboxes(), ElementsAre("15|Sales|first floor|M"));
}

TEST_F(frmOptionsTest, ReturnPressesTheButtonThatHasTheFocus) {
    mailbox("12");
    openWithList();
    showActive();
    control<QPushButton>("cmdServer").setFocus();
    QTest::keyClick(dialog->focusWidget(), Qt::Key_Return);
    EXPECT_THAT(servers.shown, ElementsAre("srv01"));
    ASSERT_TRUE(dialog->isVisible());
    control<QPushButton>("cmdCancel").setFocus();
    QTest::keyClick(dialog->focusWidget(), Qt::Key_Return);
    EXPECT_FALSE(dialog->isVisible());
    EXPECT_TRUE(dialog->Cancelled());
}

TEST_F(frmOptionsTest, EverythingHasAnAccessibleName) {
    openWithList();
    EXPECT_EQ(control<QLineEdit>("txtServer").accessibleName(), QStringLiteral("Quillamar-Server:"));
    EXPECT_EQ(control<QLineEdit>("txtInterval").accessibleName(),
              QStringLiteral("Update-Interval: s (10s - 600s)"));
    EXPECT_EQ(control<QPushButton>("cmdServer").accessibleName(), QStringLiteral("Choose server"));
    EXPECT_EQ(view().accessibleName(), QStringLiteral("Mailboxes"));
}

// A share that answers only when the test lets it.
class SlowShareTest : public frmOptionsTest {
protected:
    SlowShareTest() {
        mailbox("12");
        watch(12);
        beforeEachQuestion = [answers = opened.get_future().share()] { answers.wait(); };
    }
    ~SlowShareTest() override { release(); }
    void release() {
        if (!std::exchange(isReleased, true))
            opened.set_value();
    }

    std::promise<void> opened;
    bool isReleased = false;
};

TEST_F(SlowShareTest, TheDialogLivesOnWithItsProgressAndHasNothingToConfirmYet) {
    open();
    dialog->show();
    EXPECT_TRUE(control<QLabel>("lblSearch").isVisible());
    EXPECT_TRUE(control<QProgressBar>("barSearch").isVisible());
    EXPECT_FALSE(control<QPushButton>("cmdOK").isEnabled());
    EXPECT_TRUE(control<QPushButton>("cmdCancel").isEnabled());
    release();
    ASSERT_TRUE(QTest::qWaitFor([this] { return !search.isSearching(); }));
    EXPECT_FALSE(control<QProgressBar>("barSearch").isVisible());
    EXPECT_TRUE(control<QPushButton>("cmdOK").isEnabled());
    EXPECT_THAT(rows(), ElementsAre("+12|Sales|first floor"));
}

// A failure that is told while another one's report is up is answered unseen, and mailboxes that are missing
// from the list would be given up by OK.
TEST_F(SlowShareTest, WhatWasFoundWaitsBehindTheWindowInFront) {
    open();
    dialog->show();
    QDialog inFront;
    inFront.setModal(true);
    inFront.show();
    release();
    const auto& bar = control<QProgressBar>("barSearch");
    ASSERT_TRUE(QTest::qWaitFor([&bar] { return bar.maximum() == 1 && bar.value() == 1; }));
    EXPECT_THAT(rows(), IsEmpty());
    EXPECT_FALSE(control<QPushButton>("cmdOK").isEnabled());
    inFront.close();
    ASSERT_TRUE(QTest::qWaitFor([this] { return !search.isSearching(); }));
    EXPECT_THAT(rows(), ElementsAre("+12|Sales|first floor"));
    EXPECT_TRUE(control<QPushButton>("cmdOK").isEnabled());
}

TEST_F(SlowShareTest, CancelNeedsNoAnswerOfTheShare) {
    open();
    dialog->show();
    control<QPushButton>("cmdCancel").click();
    EXPECT_TRUE(dialog->Cancelled());
    EXPECT_FALSE(search.isSearching());
    dialog.reset();
    release();
    EXPECT_THAT(errorHandler.reports, IsEmpty());
}

TEST_F(SlowShareTest, AnotherServerIsNotKeptWaitingByTheOneThatHangs) {
    open();
    beforeEachQuestion = [] {};
    servers.answer = QStringLiteral("srv01");
    control<QPushButton>("cmdServer").click();
    ASSERT_TRUE(QTest::qWaitFor([this] { return !search.isSearching(); }));
    EXPECT_THAT(rows(), ElementsAre("12|Sales|first floor"));
}

} // namespace
} // namespace dialogs
