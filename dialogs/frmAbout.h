// SPDX-FileCopyrightText: 2026 The qmClient authors
// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once
// The modal about box: what the program is called, its version, who makes it, and a button that starts the
// workstation's system-information program. Escape and the frame mean OK. What it is given must outlive it;
// user-interface thread.

#include "dialogs/SystemInformation.h"
#include "errors/ErrorHandler.h"

#include <QDialog>

class QFrame;
class QLabel;
class QPushButton;

namespace dialogs {

class frmAbout final : public QDialog {
    Q_OBJECT
public:
    frmAbout(errors::ErrorHandler& errorHandler, SystemInformation systemInformation,
             QWidget* parent = nullptr);

private:
    void Form_Load();
    void setTexts();
    void layOut();
    void cmdOK_Click();

    errors::ErrorHandler& m_errors;
    SystemInformation m_systemInformation;
    QLabel* m_Picture1;
    QLabel* m_lblTitle;
    QLabel* m_lblVersion;
    QFrame* m_Label1; // divides the title from the maker
    QLabel* m_lblDescription;
    QLabel* m_lblDisclaimer;
    QPushButton* m_cmdOK;
    QPushButton* m_cmdSysInfo;
};

} // namespace dialogs
