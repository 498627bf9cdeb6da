// SPDX-FileCopyrightText: 2026 The qmClient authors
// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once
// Asks who logs on to a server. Lives for one question; what was typed into the password's field goes with
// it. User-interface thread.

#include <QDialog>
#include <QString>

class QCheckBox;
class QLineEdit;
class QPushButton;

namespace shell {

// In the user's language.
struct LogOnTexts {
    QString caption;
    QString user;
    QString domain;
    QString password;
    QString remember;
    QString cannotRemember; // why
    QString ok;
    QString cancel;
};

// What the dialog offers for later runs.
enum class Remembering { Impossible, Offered, Chosen };

class LogOnDialog final : public QDialog {
    Q_OBJECT
public:
    LogOnDialog(const LogOnTexts& texts, const QString& user, const QString& domain, Remembering remembering);

    QString user() const;
    QString domain() const;
    QString password() const;
    bool isToBeRemembered() const;

private:
    void addRemembering(const LogOnTexts& texts, Remembering remembering);
    QLineEdit* addField(const QString& name, const QString& caption);

    QLineEdit* m_txtUser;
    QLineEdit* m_txtDomain;
    QLineEdit* m_txtPassword;
    QCheckBox* m_chkRemember;
};

} // namespace shell
