// SPDX-FileCopyrightText: 2026 The qmClient authors
// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once
// The controls of the error dialog with their captions and their places: what a form designer would draw. The
// dialog owns them. Each is known by its own name, also as object name. Values are shown as plain text,
// whatever is in them, and can be selected and copied.

#include <cstdint>

class QBoxLayout;
class QDialog;
class QGridLayout;
class QLabel;
class QLineEdit;
class QPlainTextEdit;
class QPushButton;
class QString;
class QWidget;

namespace errors {

struct ErrorControls {
    explicit ErrorControls(QDialog& dialog);

    QLabel* lblMain = nullptr;
    QPushButton* cmdDetails = nullptr;
    QPushButton* cmdSend = nullptr;
    QPushButton* cmdIgnore = nullptr;
    QPushButton* cmdRetry = nullptr;
    QPushButton* cmdCancel = nullptr;
    QWidget* details = nullptr; // holds the fields below
    QLineEdit* txtComponent = nullptr;
    QLineEdit* txtVersion = nullptr;
    QLineEdit* txtModule = nullptr;
    QLineEdit* txtOS = nullptr;
    QPlainTextEdit* txtError = nullptr;

private:
    void addExplanation(QBoxLayout& column, QDialog& dialog);
    void addButtons(QBoxLayout& column, QDialog& dialog);
    void addDetails(QBoxLayout& column, QDialog& dialog);
};

// Sets a button's caption and makes Alt with its first letter press it: the captions carry no access keys.
void setCaption(QPushButton& button, const QString& caption);

} // namespace errors
