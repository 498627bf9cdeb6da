// SPDX-FileCopyrightText: 2026 The qmClient authors
// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once
// Asks who logs on to a server. Lives for one question; what was typed into the password's field goes with
// it. User-interface thread.

#include <QDialog>
#include <QString>

class QLineEdit;
class QPushButton;

namespace shell {

// In the user's language.
struct LogOnTexts {
    QString caption;
    QString user;
    QString domain;
    QString password;
    QString ok;
    QString cancel;
};

class LogOnDialog final : public QDialog {
    Q_OBJECT
public:
    LogOnDialog(const LogOnTexts& texts, const QString& user, const QString& domain);

    QString user() const;
    QString domain() const;
    QString password() const;

private:
    QLineEdit* addField(const QString& name, const QString& caption);

    QLineEdit* m_txtUser;
    QLineEdit* m_txtDomain;
    QLineEdit* m_txtPassword;
};

} // namespace shell
