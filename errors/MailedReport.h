// SPDX-FileCopyrightText: 2026 The qmClient authors
// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once
// Mails an error report to the maker's support through the workstation's mail program, once the user has said
// whether to look at it first. Nothing goes out without that answer. What keeps a mail from going out is told
// with the same message as a mail program that cannot be started. User-interface thread; what it is given
// must outlive it.

#include "errors/ReportSender.h"
#include "platform/basic/Clock.h"
#include "platform/forms/MessageBoxes.h"
#include "platform/shell/Mail.h"

#include <QObject>

#include <memory>

namespace errors {

class MailedReport final : public QObject, public ReportSender {
    Q_OBJECT
public:
    MailedReport(shell::MailProgram& mail, forms::MessageBoxes& messageBoxes, const basic::Clock& clock)
        : m_mail(mail), m_messageBoxes(messageBoxes), m_clock(clock) {}

    void send(const ReportFields& fields, QWidget& over) override;

private:
    std::unique_ptr<shell::MailItem> compose(const ReportFields& fields);
    void dispatch(shell::MailItem& item);
    void tell(shell::MailOutcome outcome);
    void tellFailure();

    shell::MailProgram& m_mail;
    forms::MessageBoxes& m_messageBoxes;
    const basic::Clock& m_clock;
};

} // namespace errors
