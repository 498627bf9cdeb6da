// SPDX-FileCopyrightText: 2026 The qmClient authors
// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once
// The controls of the options dialog and their places: what a form designer would draw. Each is known by its
// own name, also as object name; captions are set by the dialog. The dialog owns them.

class QDialog;
class QFrame;
class QLabel;
class QLineEdit;
class QProgressBar;
class QPushButton;
class QWidget;

namespace forms {
class CVTab;
class ListView;
} // namespace forms

namespace dialogs {

struct OptionsControls {
    explicit OptionsControls(QDialog& dialog);

    // As much as the captions need, once they are set.
    void reserveRoom() const;

    forms::CVTab* CVTab1 = nullptr;
    QFrame* Frame1 = nullptr; // around the fields
    QLabel* Label1 = nullptr; // of the server
    QLineEdit* txtServer = nullptr;
    QPushButton* cmdServer = nullptr;
    QLabel* Label2 = nullptr; // of the interval
    QLineEdit* txtInterval = nullptr;
    QLabel* Label3 = nullptr; // the interval's unit
    forms::ListView* lsMailboxes = nullptr;
    QLabel* Label4 = nullptr; // what the list is for
    QLabel* lblSearch = nullptr;
    QProgressBar* barSearch = nullptr;
    QPushButton* cmdOK = nullptr;
    QPushButton* cmdCancel = nullptr;

private:
    void addFields(QWidget& page);
    void addList(QWidget& page);
    void addButtons(QDialog& dialog);
    void chainTabs() const;
};

} // namespace dialogs
