// SPDX-FileCopyrightText: 2026 The qmClient authors
// SPDX-License-Identifier: GPL-3.0-or-later
#include "tray/frmAlert.h"

#include "platform/basic/RuntimeError.h"
#include "resources/StringTable.h"

#include <QAbstractButton>
#include <QCoreApplication>
#include <QDialog>
#include <QLabel>

#include <gtest/gtest.h>

#include <functional>
#include <string>
#include <vector>

namespace tray {
namespace {

using shell::Rectangle;

// A desktop with the rectangles the test wants; every operation is noted.
class FakeDesktop : public shell::DesktopWindows {
public:
    shell::WindowHandle FindWindowExA(std::string_view className) override {
        note("find " + std::string(className));
        return taskbar ? 2 : 0;
    }
    shell::WindowHandle GetDesktopWindow() override { return 1; }
    Rectangle GetWindowRect(shell::WindowHandle window) override {
        note("rect " + std::to_string(window));
        return window == 1 ? desktop : *taskbar;
    }
    void move(QWidget& window, int left, int top) override {
        note("move");
        wasVisible = window.isVisible();
        place = Rectangle{left, top, left + window.width(), top + window.height()};
    }
    void clearOwner(QWidget& window) override {
        note(window.isVisible() ? "clear owner of shown" : "clear owner");
    }
    void makeTopMost(QWidget&) override { note("top-most"); }

    Rectangle desktop{0, 0, 1024, 768};
    std::optional<Rectangle> taskbar;
    std::string failing;
    std::vector<std::string> operations;
    Rectangle place;
    bool wasVisible = false;

private:
    void note(const std::string& operation) {
        operations.push_back(operation);
        if (operation == failing)
            throw basic::RuntimeError(basic::kInvalidProcedureCall, "made to fail");
    }
};

class Recorder : public errors::ErrorHandler {
public:
    errors::ErrorAction ReportError(std::string_view module, std::string_view procedure, std::int32_t number,
                                    std::string_view, std::int32_t) override {
        reports.push_back(std::string(module) + "." + std::string(procedure) + " " + std::to_string(number));
        return answer;
    }
    std::vector<std::string> reports;
    errors::ErrorAction answer = errors::ErrorAction::Ignore;
};

class frmAlertTest : public testing::Test {
protected:
    static void SetUpTestSuite() { resources::setLanguage(resources::Language::English); }
    frmAlertTest() {
        QObject::connect(&m_alert, &frmAlert::Show, &m_alert, [this](bool& ShowList) {
            m_shown.push_back(ShowList);
            m_visibleAtShow = m_alert.isVisible();
        });
    }
    Rectangle placeWith(std::optional<Rectangle> taskbar) {
        m_desktop.taskbar = taskbar;
        m_alert.ShowForm();
        return m_desktop.place;
    }
    // Once the layouts have done what they put off until then.
    int rightEdgeWith(const QString& text) {
        m_alert.lblInfo().setText(text);
        const int left = placeWith(std::nullopt).left;
        do
            QCoreApplication::processEvents();
        while (m_alert.width() != m_alert.sizeHint().width());
        return left + m_alert.width();
    }
    QAbstractButton& link(const QString& name) { return *m_alert.findChild<QAbstractButton*>(name); }

    Recorder m_errors;
    FakeDesktop m_desktop;
    frmAlert m_alert{m_errors, m_desktop};
    std::vector<bool> m_shown;
    bool m_visibleAtShow = true;
};

TEST_F(frmAlertTest, SitsAboveATaskbarAtTheBottom) {
    const Rectangle place = placeWith(Rectangle{0, 738, 1024, 768});
    EXPECT_EQ(place.bottom, 738);
    EXPECT_EQ(place.right, 1024);
}

TEST_F(frmAlertTest, SitsInTheCornerWithATaskbarAtTheTopOrASide) {
    for (const Rectangle& taskbar :
         {Rectangle{0, 0, 1024, 30}, Rectangle{0, 0, 60, 768}, Rectangle{964, 0, 1024, 768}}) {
        const Rectangle place = placeWith(taskbar);
        EXPECT_EQ(place.bottom, 768);
        EXPECT_EQ(place.right, 1024);
    }
}

TEST_F(frmAlertTest, SitsInTheCornerWithoutATaskbar) {
    const Rectangle place = placeWith(std::nullopt);
    EXPECT_EQ(place.bottom, 768);
    EXPECT_EQ(place.right, 1024);
    EXPECT_TRUE(m_errors.reports.empty());
}

TEST_F(frmAlertTest, TakesATaskbarForTheBottomOnesWithinItsTolerances) {
    const auto isRaised = [this](const Rectangle& taskbar) { return placeWith(taskbar).bottom != 768; };
    EXPECT_TRUE(isRaised({9, 738, 1015, 768}));
    EXPECT_FALSE(isRaised({9, 738, 1014, 768}));
    EXPECT_FALSE(isRaised({10, 738, 1024, 768}));
    EXPECT_TRUE(isRaised({0, 11, 1024, 41}));
    EXPECT_FALSE(isRaised({0, 10, 1024, 40}));
}

TEST_F(frmAlertTest, PlacesShowsAndRaisesInThisOrder) {
    placeWith(Rectangle{0, 738, 1024, 768});
    EXPECT_EQ(m_desktop.operations, (std::vector<std::string>{"find Shell_TrayWnd", "rect 1", "rect 2",
                                                              "move", "clear owner of shown", "top-most"}));
    EXPECT_FALSE(m_desktop.wasVisible);
    EXPECT_TRUE(m_alert.isVisible());
}

TEST_F(frmAlertTest, MovesAndStaysWhenItIsShownAgain) {
    placeWith(std::nullopt);
    m_alert.lblInfo().setText(u"You have  1234567  new calls and then some"_qs);
    const Rectangle place = placeWith(Rectangle{0, 738, 1024, 768});
    EXPECT_EQ(place.bottom, 738);
    EXPECT_EQ(place.right, 1024);
    EXPECT_TRUE(m_alert.isVisible());
}

TEST_F(frmAlertTest, IsPlacedByTheWidthOfItsNewTextWhileItIsUp) {
    for (const QString& text : {u"You have  9  new calls"_qs, u"You have  10  new calls"_qs,
                                u"You have  1234567  new calls"_qs, u"You have  1  new calls"_qs})
        EXPECT_EQ(rightEdgeWith(text), 1024);
}

TEST_F(frmAlertTest, IsPlacedByTheWidthOfItsNewTextWhenItComesUpAgain) {
    EXPECT_EQ(rightEdgeWith(u"You have  12  new calls"_qs), 1024);
    link(u"Label1"_qs).click();
    EXPECT_EQ(rightEdgeWith(u"You have  1  new calls"_qs), 1024);
}

TEST_F(frmAlertTest, TheCloseLinkHidesItAndThenRaisesShowWithFalse) {
    m_alert.ShowForm();
    link(u"Label1"_qs).click();
    EXPECT_EQ(m_shown, std::vector{false});
    EXPECT_FALSE(m_visibleAtShow);
    EXPECT_FALSE(m_alert.isVisible());
}

TEST_F(frmAlertTest, TheOpenLinkHidesItAndThenRaisesShowWithTrue) {
    m_alert.ShowForm();
    link(u"Label2"_qs).click();
    EXPECT_EQ(m_shown, std::vector{true});
    EXPECT_FALSE(m_visibleAtShow);
}

TEST_F(frmAlertTest, ReportsAFailureUnderItsOwnNamesAndGoesOnWhenIgnored) {
    m_desktop.failing = "find Shell_TrayWnd";
    m_alert.ShowForm();
    EXPECT_EQ(m_errors.reports, std::vector<std::string>{"frmAlert.ShowForm 5"});
    EXPECT_TRUE(m_alert.isVisible());
}

TEST_F(frmAlertTest, StopsAtAFailureThatAborts) {
    m_errors.answer = errors::ErrorAction::Abort;
    m_desktop.failing = "move";
    m_alert.ShowForm();
    EXPECT_FALSE(m_alert.isVisible());
}

TEST_F(frmAlertTest, RaisesError401BesideAModalWindow) {
    QDialog dialog;
    dialog.setModal(true);
    dialog.show();
    m_errors.answer = errors::ErrorAction::Abort;
    m_alert.ShowForm();
    EXPECT_EQ(m_errors.reports, std::vector<std::string>{"frmAlert.ShowForm 401"});
    EXPECT_FALSE(m_alert.isVisible());
}

TEST_F(frmAlertTest, ShowsTheMessageAsItIsNeverAsMarkup) {
    EXPECT_EQ(m_alert.lblInfo().text(), u"You have 5 new calls"_qs);
    m_alert.lblInfo().setText(u"You have  3  new calls"_qs);
    EXPECT_EQ(m_alert.lblInfo().textFormat(), Qt::PlainText);
}

TEST_F(frmAlertTest, ItsLinksHaveTheirTextsAndNamesAndNeverTakeTheFocus) {
    EXPECT_EQ(link(u"Label1"_qs).text(), u"x"_qs);
    EXPECT_EQ(link(u"Label1"_qs).accessibleName(), u"Close"_qs);
    EXPECT_EQ(link(u"Label2"_qs).text(), u"Show"_qs);
    for (const QWidget* widget : m_alert.findChildren<QWidget*>())
        EXPECT_EQ(widget->focusPolicy(), Qt::NoFocus) << widget->objectName().toStdString();
}

TEST_F(frmAlertTest, WritesInTahoma) {
    EXPECT_EQ(m_alert.lblInfo().font().families().value(0), u"Tahoma"_qs);
}

} // namespace
} // namespace tray
