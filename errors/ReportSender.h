// SPDX-FileCopyrightText: 2026 The qmClient authors
// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once
// Mails an error report to the maker. Given to the error dialog, which offers its button only when it has
// one. User-interface thread; the sender shows its own messages.

#include <QString>

class QWidget;

namespace errors {

// What the dialog's fields say, for the report's text.
struct ReportFields {
    QString component;
    QString version;
    QString module;
    QString operatingSystem;
    QString error; // three lines, separated by CR LF
};

class ReportSender {
public:
    ReportSender() = default;
    ReportSender(const ReportSender&) = delete;
    ReportSender& operator=(const ReportSender&) = delete;
    virtual ~ReportSender() = default;

    // `over` is the window that questions and messages belong to.
    virtual void send(const ReportFields& fields, QWidget& over) = 0;
};

} // namespace errors
