// SPDX-FileCopyrightText: 2026 The qmClient authors
// SPDX-License-Identifier: GPL-3.0-or-later
// What the details dialog shows of a call, and of none.
#include "dialogs/frmCallDetails.h"

#include "resources/StringTable.h"
#include "tests/dialogs/DetailsWorld.h"
#include "tests/errors/RecordingErrorHandler.h"

#include <QLabel>
#include <QPlainTextEdit>
#include <QPushButton>

#include <gmock/gmock.h>
#include <gtest/gtest.h>

namespace dialogs {
namespace {

class frmCallDetailsTest : public testing::Test {
protected:
    void TearDown() override {
        resources::setLanguage(resources::Language::English);
        EXPECT_TRUE(errors.reports.empty());
    }
    // Announces the call, the only one in the log.
    void show(const tests::Call& call, const QLocale& locale = QLocale::c()) {
        world.locale = locale;
        world.log.append(call);
        world.open();
        world.announce(call.callID);
    }
    std::string label(const char* name) { return world.control<QLabel>(name).text().toStdString(); }
    std::string details() { return world.control<QPlainTextEdit>("txtDetails").toPlainText().toStdString(); }
    std::set<std::string> shown() {
        std::set<std::string> names;
        for (const QWidget* control : controls())
            if (!control->isHidden())
                names.insert(control->objectName().toStdString());
        return names;
    }
    std::vector<QWidget*> controls() {
        std::vector<QWidget*> all;
        for (const char* name : {"CVTab1", "picType", "Label2", "lblDate", "Label3", "lblCallID", "Label1",
                                 "lblCaller", "Label7", "lblMessage", "Label11", "txtDetails", "lblNoEvent",
                                 "cmdUp", "cmdDown", "cmdCopy", "Command1"})
            all.push_back(&world.control<QWidget>(name));
        return all;
    }
    QImage picture() {
        auto& box = world.control<forms::PictureBox>("picType");
        return box.grab().toImage();
    }

    errors::RecordingErrorHandler errors;
    DetailsWorld world{errors};
};

const std::set<std::string> kEmptyState{"CVTab1", "Command1", "lblNoEvent"};

TEST_F(frmCallDetailsTest, ShowsEveryFieldOfTheAnnouncedCall) {
    show({.callID = "A7", .callerName = "Anna Berg", .messageLength = 12, .callerID = "+49301"},
         QLocale(QLocale::English, QLocale::UnitedStates));
    EXPECT_EQ(label("lblDate"), "Wednesday, March 15, 2023 12:00:00 PM");
    EXPECT_EQ(label("lblCallID"), "A7");
    EXPECT_EQ(label("lblCaller"), "+49301 - Anna Berg");
    EXPECT_EQ(label("lblMessage"), "12 s");
    EXPECT_EQ(details(), "details of A7");
    EXPECT_EQ(world.dialog->windowTitle().toStdString(), "Call Details");
    EXPECT_EQ(world.control<forms::CVTab>("CVTab1").TabCaption(1), "Detail Information");
    const auto visible = shown();
    EXPECT_EQ(visible.size(), 16U);
    EXPECT_FALSE(visible.contains("lblNoEvent"));
}

TEST_F(frmCallDetailsTest, DateIsLongInTheUsersLocale) {
    show({.callID = "A7"}, QLocale(QLocale::German, QLocale::Germany));
    EXPECT_EQ(label("lblDate"), "Mittwoch, 15. März 2023 12:00:00");
}

TEST_F(frmCallDetailsTest, CaptionsAndTextsAreInTheProgramsLanguage) {
    resources::setLanguage(resources::Language::German);
    world.open();
    world.announce("-1");
    EXPECT_EQ(world.dialog->windowTitle().toStdString(), "Anruf-Details");
    EXPECT_EQ(world.control<forms::CVTab>("CVTab1").TabCaption(1), "Details");
    EXPECT_EQ(label("Label2"), "Datum:");
    EXPECT_EQ(label("Label3"), "Anruf-ID:");
    EXPECT_EQ(label("Label1"), "Anrufer:");
    EXPECT_EQ(label("Label7"), "Nachricht:");
    EXPECT_EQ(label("Label11"), "Details");
    EXPECT_EQ(world.control<QPushButton>("Command1").text().toStdString(), "Schließen");
    EXPECT_EQ(label("lblNoEvent"), "Momentan ist kein Eintrag ausgewählt");
}

TEST_F(frmCallDetailsTest, UnknownCallShowsOnlyTabCloseButtonAndThatNoneIsSelected) {
    show({.callID = "A7"});
    world.announce("A8");
    EXPECT_EQ(shown(), kEmptyState);
    EXPECT_EQ(label("lblNoEvent"), "Currently there is no call entry selected.");
}

TEST_F(frmCallDetailsTest, NoCallAndNoConnectionShowTheSame) {
    show({.callID = "A7"});
    world.announce("-1");
    EXPECT_EQ(shown(), kEmptyState);
    world.announce("A7");
    EXPECT_NE(shown(), kEmptyState);
    world.selection.announce(nullptr, "A7");
    EXPECT_EQ(shown(), kEmptyState);
    EXPECT_EQ(label("lblCallID"), "");
    EXPECT_EQ(details(), "");
}

TEST_F(frmCallDetailsTest, IsEmptyBeforeAnythingWasAnnounced) {
    world.open();
    EXPECT_EQ(shown(), kEmptyState);
}

TEST_F(frmCallDetailsTest, CallerWhoseNameIsBlankShowsTheNumberAlone) {
    show({.callID = "A7", .callerName = "   ", .callerID = "+49301"});
    EXPECT_EQ(label("lblCaller"), "+49301");
}

TEST_F(frmCallDetailsTest, CallerWithoutANameShowsTheNumberAlone) {
    show({.callID = "A7", .callerName = std::nullopt, .callerID = "+49\n301"});
    EXPECT_EQ(label("lblCaller"), "+49\n301");
}

TEST_F(frmCallDetailsTest, LineFeedsOfACallerWithANameBecomeDashes) {
    show({.callID = "A7", .callerName = "Berg\nAnna", .callerID = "+49\n301"});
    EXPECT_EQ(label("lblCaller"), "+49 - 301 - Berg - Anna");
}

TEST_F(frmCallDetailsTest, CallerWithoutANumberShowsTheNameAfterTheDash) {
    show({.callID = "A7", .callerName = "Anna", .callerID = std::nullopt});
    EXPECT_EQ(label("lblCaller"), " - Anna");
}

TEST_F(frmCallDetailsTest, MarkupInACallIsShownAsItIs) {
    show({.callID = "A7", .callerName = "<b>x</b>", .details = "<img src='x'>"});
    EXPECT_EQ(world.control<QLabel>("lblCaller").textFormat(), Qt::PlainText);
    EXPECT_EQ(details(), "<img src='x'>");
}

TEST_F(frmCallDetailsTest, CallWithoutAMessageSaysSoAndHasAnotherPicture) {
    show({.callID = "A7", .messageLength = 0});
    EXPECT_EQ(label("lblMessage"), "No message recorded");
    const QImage without = picture();
    world.log.append({.callID = "A8", .messageLength = 1});
    world.announce("A8");
    EXPECT_EQ(label("lblMessage"), "1 s");
    EXPECT_NE(picture(), without);
}

TEST_F(frmCallDetailsTest, CallOfUnknownLengthHasNoMessage) {
    show({.callID = "A7", .messageLength = std::nullopt});
    EXPECT_EQ(label("lblMessage"), "No message recorded");
}

TEST_F(frmCallDetailsTest, FieldsThatAreNullAreEmpty) {
    show({.callID = "A7",
          .callerName = std::nullopt,
          .callerID = std::nullopt,
          .date = std::nullopt,
          .details = basic::Null{}});
    EXPECT_EQ(label("lblDate"), "");
    EXPECT_EQ(label("lblCaller"), "");
    EXPECT_EQ(details(), "");
}

TEST_F(frmCallDetailsTest, DetailsMayBeOfAnyLength) {
    std::string text;
    while (text.size() < 300'000)
        text += "Zeile mit Übergröße\r\n";
    show({.callID = "A7", .details = text});
    const QString shownText = world.control<QPlainTextEdit>("txtDetails").toPlainText();
    EXPECT_EQ(shownText, QString::fromStdString(text).replace(u"\r\n"_qs, u"\n"_qs));
}

TEST_F(frmCallDetailsTest, LongTextsNeverWidenIt) {
    world.open();
    const int width = world.dialog->minimumSizeHint().width();
    show({.callID = "C1", .callerName = std::string(50, 'W'), .callerID = std::string(50, '5')});
    EXPECT_EQ(world.dialog->minimumSizeHint().width(), width);
}

// Between two calls the dialog shows that there is none; nothing may jump then.
TEST_F(frmCallDetailsTest, KeepsItsSizeAndItsButtonsWhereTheyAreWhenItIsEmpty) {
    show({.callID = "C1"});
    world.dialog->show();
    const QSize least = world.dialog->minimumSizeHint();
    const QPoint close = world.control<QPushButton>("Command1").pos();
    world.announce("unknown");
    EXPECT_EQ(world.dialog->minimumSizeHint(), least);
    EXPECT_EQ(world.control<QPushButton>("Command1").pos(), close);
}

TEST_F(frmCallDetailsTest, DetailsCannotBeEdited) {
    show({.callID = "A7"});
    EXPECT_TRUE(world.control<QPlainTextEdit>("txtDetails").isReadOnly());
}

TEST_F(frmCallDetailsTest, PictureFollowsTheTheme) {
    show({.callID = "A7"});
    const QImage before = picture();
    auto& box = world.control<forms::PictureBox>("picType");
    QPalette palette = box.palette();
    palette.setColor(QPalette::WindowText, QColor(200, 10, 220));
    box.setPalette(palette);
    EXPECT_NE(picture(), before);
    palette.setColor(QPalette::WindowText, QColor(1, 2, 3));
    box.setPalette(palette);
    bool hasForeground = false;
    for (int x = 0; x < box.ScaleWidth() && !hasForeground; ++x)
        for (int y = 0; y < box.ScaleHeight() && !hasForeground; ++y)
            hasForeground = box.Point(x, y) == std::optional(QColor(1, 2, 3));
    EXPECT_TRUE(hasForeground);
}

} // namespace
} // namespace dialogs
