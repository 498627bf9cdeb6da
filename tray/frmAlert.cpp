// SPDX-FileCopyrightText: 2026 The qmClient authors
// SPDX-License-Identifier: GPL-3.0-or-later
#include "tray/frmAlert.h"

#include "platform/basic/Twips.h"
#include "platform/forms/ModalState.h"
#include "resources/Icons.h"
#include "resources/LocalText.h"
#include "tray/LinkLabel.h"

#include <QApplication>
#include <QFrame>
#include <QGridLayout>
#include <QLabel>

namespace tray {
namespace {

using resources::localText;

using basic::Twips;

constexpr int kSideTolerance = 10; // how far a taskbar may end from the screen's sides and still span it
constexpr int kLeastTaskbarTop = 11;
constexpr int kPictureSize = 32;

QFont labelFont() {
    QFont font = QApplication::font();
    font.setFamilies({u"Tahoma"_qs, font.family()});
    return font;
}

bool spansTheBottom(const shell::Rectangle& taskbar, const shell::Rectangle& desktop) {
    return taskbar.right > desktop.right - kSideTolerance && taskbar.top >= kLeastTaskbarTop &&
           taskbar.left < kSideTolerance;
}

} // namespace

frmAlert::frmAlert(errors::ErrorHandler& errorHandler, shell::DesktopWindows& desktop)
    : QWidget(nullptr,
              Qt::Tool | Qt::FramelessWindowHint | Qt::WindowStaysOnTopHint | Qt::WindowDoesNotAcceptFocus),
      m_errors(errorHandler), m_desktop(desktop), m_Shape1(new QFrame(this)), m_Image1(new QLabel(m_Shape1)),
      m_lblInfo(new QLabel(u"You have 5 new calls"_qs, m_Shape1)),
      m_Label1(new LinkLabel(u"Label1"_qs, u"x"_qs, m_Shape1)),
      m_Label2(new LinkLabel(u"Label2"_qs, localText(3760, "Show"), m_Shape1)) {
    setObjectName(u"frmAlert"_qs);
    setWindowTitle(localText(5018, "New calls"));
    setAttribute(Qt::WA_ShowWithoutActivating);
    setFocusPolicy(Qt::NoFocus);
    setFont(labelFont());
    m_Shape1->setObjectName(u"Shape1"_qs);
    m_Image1->setObjectName(u"Image1"_qs);
    m_lblInfo->setObjectName(u"lblInfo"_qs);
    m_lblInfo->setTextFormat(Qt::PlainText);
    m_Label1->setAccessibleName(localText(129, "Close"));
    connect(m_Label1, &LinkLabel::clicked, this, &frmAlert::Label1_Click);
    connect(m_Label2, &LinkLabel::clicked, this, &frmAlert::Label2_Click);
    layOut();
}

void frmAlert::layOut() {
    m_Shape1->setFrameShape(QFrame::StyledPanel);
    m_Image1->setFixedSize(kPictureSize, kPictureSize);
    auto* box = new QGridLayout(m_Shape1);
    box->setContentsMargins(14, 8, 8, 8);
    box->setHorizontalSpacing(12);
    box->addWidget(m_Image1, 0, 0, 2, 1, Qt::AlignCenter);
    box->addWidget(m_lblInfo, 0, 1, Qt::AlignVCenter);
    box->addWidget(m_Label1, 0, 2, Qt::AlignTop | Qt::AlignRight);
    box->addWidget(m_Label2, 1, 1, 1, 2, Qt::AlignRight | Qt::AlignBottom);
    box->setColumnStretch(1, 1);
    auto* whole = new QGridLayout(this);
    whole->setContentsMargins(0, 0, 0, 0);
    whole->setSizeConstraint(QLayout::SetFixedSize);
    whole->addWidget(m_Shape1);
}

// Drawn anew for each showing: theme and scale may have changed since the last.
void frmAlert::showEvent(QShowEvent* event) {
    m_Image1->setPixmap(
        resources::newCallsPicture().pixmap(QSize(kPictureSize, kPictureSize), devicePixelRatio()));
    QWidget::showEvent(event);
}

void frmAlert::ShowForm() {
    errors::Procedure proc{m_errors, "frmAlert", "ShowForm"};
    shell::WindowHandle taskbar = 0;
    shell::Rectangle screen;
    Twips left;
    Twips top;
    proc.step([&] { taskbar = m_desktop.FindWindowExA("Shell_TrayWnd"); });
    proc.step([&] { screen = m_desktop.GetWindowRect(m_desktop.GetDesktopWindow()); });
    proc.step([&] {
        fitText();
        left = Twips{basic::fromPixels(screen.right).value - basic::fromPixels(width()).value};
        top = Twips{basic::fromPixels(screen.bottom).value - basic::fromPixels(height()).value};
    });
    proc.step([&] {
        if (taskbar == 0)
            return;
        const shell::Rectangle bar = m_desktop.GetWindowRect(taskbar);
        if (spansTheBottom(bar, screen))
            top.value -= basic::fromPixels(bar.height()).value;
    });
    proc.step([&] { m_desktop.move(*this, basic::toPixels(left), basic::toPixels(top)); });
    proc.step([&] { forms::showNonModal(*this); });
    proc.step([&] { m_desktop.clearOwner(*this); });
    proc.step([&] { m_desktop.makeTopMost(*this); });
}

// At once: the box would tell the window only later that its text has another width, and the window would
// then leave the place that it was given for the old one.
void frmAlert::fitText() {
    ensurePolished();
    m_Shape1->layout()->activate();
    adjustSize();
}

void frmAlert::Label1_Click() {
    errors::Procedure proc{m_errors, "frmAlert", "Label1_Click"};
    leave(proc, false);
}

void frmAlert::Label2_Click() {
    errors::Procedure proc{m_errors, "frmAlert", "Label2_Click"};
    leave(proc, true);
}

void frmAlert::leave(errors::Procedure& proc, bool ShowList) {
    proc.step([&] { hide(); });
    proc.step([&] { Q_EMIT Show(ShowList); });
}

} // namespace tray
