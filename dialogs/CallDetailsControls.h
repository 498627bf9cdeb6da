// SPDX-FileCopyrightText: 2026 The qmClient authors
// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once
// The controls of the details dialog with their captions and their places: what a form designer would draw.
// The dialog owns them. Each is known by its own name, also as object name. Values are plain text, whatever
// is in them, and can be selected and copied; the picture is 32 logical pixels wide. Hidden controls keep
// their place, so that nothing moves when a call comes and goes.

#include "platform/forms/CVTab.h"
#include "platform/forms/PictureBox.h"

#include <QString>

#include <vector>

class QBoxLayout;
class QDialog;
class QGridLayout;
class QLabel;
class QPlainTextEdit;
class QPushButton;

namespace dialogs {

struct CallDetailsControls {
    explicit CallDetailsControls(QDialog& dialog);

    forms::CVTab* CVTab1 = nullptr;
    forms::PictureBox* picType = nullptr;
    QLabel* Label2 = nullptr; // date
    QLabel* lblDate = nullptr;
    QLabel* Label3 = nullptr; // call ID
    QLabel* lblCallID = nullptr;
    QLabel* Label1 = nullptr; // caller
    QLabel* lblCaller = nullptr;
    QLabel* Label7 = nullptr; // message
    QLabel* lblMessage = nullptr;
    QLabel* Label11 = nullptr; // details
    QPlainTextEdit* txtDetails = nullptr;
    QLabel* lblNoEvent = nullptr;
    QPushButton* cmdUp = nullptr;
    QPushButton* cmdDown = nullptr;
    QPushButton* cmdCopy = nullptr;
    QPushButton* Command1 = nullptr; // close

    // Every one of them.
    std::vector<QWidget*> all() const;

private:
    void addPage();
    void addDetails(QGridLayout& grid);
    void addButtons(QBoxLayout& column, QDialog& dialog);
    void nameAll();
};

} // namespace dialogs
