// SPDX-FileCopyrightText: 2026 The qmClient authors
// SPDX-License-Identifier: GPL-3.0-or-later
#include "errors/MailedReport.h"

#include "errors/ReportText.h"
#include "platform/forms/Text.h"
#include "resources/LocalText.h"
#include "resources/ProductData.h"

#include <QPointer>

namespace errors {
namespace {

using resources::localText;

} // namespace

// Whatever fails on the way is one thing to the user: the report did not go out.
void MailedReport::send(const ReportFields& fields, QWidget& /*over*/) {
    try {
        dispatch(*compose(fields));
    } catch (...) {
        tellFailure();
    }
}

std::unique_ptr<shell::MailItem> MailedReport::compose(const ReportFields& fields) {
    auto item = m_mail.CreateItem();
    item->To = forms::toQString(resources::kSupportAddress);
    item->Subject =
        forms::toQString(resources::kProductTitle) + localText(3703, " Error-Report: ") + fields.component;
    item->Body = reportText(fields, m_clock.now());
    return item;
}

void MailedReport::dispatch(shell::MailItem& item) {
    const auto answer = m_messageBoxes.show(
        localText(3697, "Do you want to review or comment the Error-Report?"),
        forms::kYesNoCancel | forms::kQuestion, forms::toQString(resources::kProductTitle));
    const auto tellOutcome = [self = QPointer(this)](shell::MailOutcome outcome) {
        if (self)
            self->tell(outcome);
    };
    if (answer == forms::MessageBoxResult::Yes)
        item.Display(tellOutcome);
    else if (answer == forms::MessageBoxResult::No)
        item.Send(tellOutcome);
}

void MailedReport::tell(shell::MailOutcome outcome) {
    if (outcome == shell::MailOutcome::Sent)
        m_messageBoxes.show(localText(3699, "The message was sent successfully."), forms::kInformation,
                            forms::toQString(resources::kProductTitle));
    if (outcome == shell::MailOutcome::Failed)
        tellFailure();
}

void MailedReport::tellFailure() {
    m_messageBoxes.show(localText(3700, "Failed to send Error-Report. Could not start Outlook."),
                        forms::kExclamation, forms::toQString(resources::kProductTitle));
}

} // namespace errors
