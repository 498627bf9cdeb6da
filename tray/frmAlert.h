// SPDX-FileCopyrightText: 2026 The qmClient authors
// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once
// The popup that announces new calls in the bottom right corner of the primary monitor, above a taskbar at
// its bottom. The owner writes lblInfo and calls ShowForm(); a click on one of the two links hides the popup
// and raises Show. It stays until then, never takes the keyboard, and lives as long as the owner wants to
// reuse it. User-interface thread; the error handler and the desktop must outlive it.

#include "errors/Procedure.h"
#include "platform/shell/DesktopWindows.h"

#include <QWidget>

class QFrame;
class QLabel;

namespace tray {

class LinkLabel;

class frmAlert : public QWidget {
    Q_OBJECT
public:
    frmAlert(errors::ErrorHandler& errorHandler, shell::DesktopWindows& desktop);

    // The message, to be set before every showing. Plain text.
    QLabel& lblInfo() { return *m_lblInfo; }
    // Places the popup, shows it and makes it top-most; on a visible popup, it moves it to where it belongs
    // now.
    void ShowForm();

Q_SIGNALS:
    // After the popup has hidden itself: false for the "x", true for the open link. A handler may change it.
    void Show(bool& ShowList);

protected:
    void showEvent(QShowEvent* event) override;

private:
    void layOut();
    void fitText();
    void Label1_Click();
    void Label2_Click();
    void leave(errors::Procedure& proc, bool ShowList);

    errors::ErrorHandler& m_errors;
    shell::DesktopWindows& m_desktop;
    QFrame* m_Shape1;
    QLabel* m_Image1;
    QLabel* m_lblInfo;
    LinkLabel* m_Label1;
    LinkLabel* m_Label2;
};

} // namespace tray
