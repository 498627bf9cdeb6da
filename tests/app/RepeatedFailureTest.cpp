// SPDX-FileCopyrightText: 2026 The qmClient authors
// SPDX-License-Identifier: GPL-3.0-or-later
//
// A failure that does not go away, with the real handler, log and dialog.
#include "tests/app/MainWorld.h"
#include "tests/app/RealHandler.h"

#include <QApplication>
#include <QPushButton>
#include <QTest>
#include <QTimer>

namespace app {
namespace {

constexpr int kPollSeconds = 10;
constexpr int kTicksOfAnHour = 3600 / kPollSeconds;

class RepeatedFailureTest : public RealHandler, public MainWorld {
protected:
    RepeatedFailureTest() : MainWorld(&m_handler) {}

    // A client whose only mailbox has a damaged definition from now on.
    void loadAndDamage() {
        configure({12}, kPollSeconds);
        mailbox(12).append(5);
        load();
        m_sound = folder.path("sound.mdb");
        std::filesystem::copy_file(mailbox(12).path(), m_sound);
        std::filesystem::resize_file(mailbox(12).path(), 3 * 4096);
    }
    void putRight() {
        std::filesystem::copy_file(m_sound, mailbox(12).path(),
                                   std::filesystem::copy_options::overwrite_existing);
    }

    // Does this once the next dialog is up; it has to answer it.
    template <typename Action>
    void whenTheDialogIsUp(Action action) {
        QTimer::singleShot(0, &*window, [this, action] {
            auto* dialog = qobject_cast<errors::frmError*>(QApplication::activeModalWidget());
            ASSERT_NE(dialog, nullptr);
            ++m_shown;
            action();
            EXPECT_FALSE(dialog->isVisible());
            dialog->close();
        });
    }
    static void press(const char* name) {
        QTest::mouseClick(
            QApplication::activeModalWidget()->findChild<QPushButton*>(QString::fromLatin1(name)),
            Qt::LeftButton);
    }
    void tickForAnHour() {
        for (int i = 0; i < kTicksOfAnHour; ++i) {
            m_clock.pass(kPollSeconds);
            tick();
            QCoreApplication::processEvents();
        }
    }

    std::filesystem::path m_sound;
    int m_shown = 0;
};

TEST_F(RepeatedFailureTest, AnHourOfTicksHasOneDialogAndOneRecordAndThePollWaits) {
    loadAndDamage();
    whenTheDialogIsUp([this] {
        tickForAnHour();
        EXPECT_NE(QApplication::activeModalWidget(), nullptr);
        EXPECT_EQ(records(), 1);
        putRight();
        mailbox(12).append(2);
        press("cmdRetry");
    });
    tick();
    EXPECT_EQ(m_shown, 1);
    EXPECT_EQ(m_dialogsMade, 1);
    EXPECT_EQ(records(), 1);
    EXPECT_NE(log().find(" at: 2026-03-14 09:00:00"), std::string::npos);
    EXPECT_EQ(popupText(), "You have  2  new calls");
}

// All ticks of the hour come to one poll, which fails once more.
TEST_F(RepeatedFailureTest, TheTicksThatWaitedBringOneFurtherDialogTogether) {
    loadAndDamage();
    whenTheDialogIsUp([this] {
        tickForAnHour();
        whenTheDialogIsUp([] { press("cmdCancel"); });
        press("cmdCancel");
    });
    tick();
    EXPECT_EQ(m_shown, 2);
    EXPECT_EQ(m_dialogsMade, 1);
    EXPECT_EQ(records(), 2);
}

} // namespace
} // namespace app
