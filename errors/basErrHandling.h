// SPDX-FileCopyrightText: 2026 The qmClient authors
// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once
// The central error handler: appends the failure to the log, asks the user and turns the answer into the
// action. Its own failures are skipped step by step, so an unwritable log never keeps the dialog away, and a
// dialog that cannot be shown aborts. The dialog is made at the first failure and kept; the handler must be
// destroyed before the application object. User-interface thread only.
//
// Error 401, a window shown while a modal dialog is up, aborts without record and dialog. A report that comes
// while another one's dialog is up (timers go on meanwhile) leaves its own record and aborts: the one dialog
// there is belongs to the failure that is being asked about.

#include "errors/ErrorDialog.h"
#include "errors/ErrorHandler.h"
#include "errors/ErrorLog.h"
#include "errors/ErrorRecord.h"
#include "platform/basic/Clock.h"

#include <functional>
#include <memory>

namespace errors {

// No trap (basErrHandling): each of its own statements that fails is skipped.
class basErrHandling final : public ErrorHandler {
public:
    using MakeDialog = std::function<std::unique_ptr<ErrorDialog>()>;

    // `clock` must outlive the handler.
    basErrHandling(ErrorLog log, const basic::Clock& clock, MakeDialog makeDialog)
        : m_log(std::move(log)), m_clock(clock), m_makeDialog(std::move(makeDialog)) {}

    // From now on a failure leaves its record, and its procedure goes on with the next statement: a program
    // that ends takes all of its last steps, whichever of them fails.
    void askNobody() { m_asksNobody = true; }

    ErrorAction ReportError(std::string_view module, std::string_view procedure, std::int32_t number,
                            std::string_view description, std::int32_t line) override;

private:
    std::string ask(const ErrorRecord& failure);

    ErrorLog m_log;
    const basic::Clock& m_clock;
    MakeDialog m_makeDialog;
    std::unique_ptr<ErrorDialog> m_dialog;
    bool m_asking = false;
    bool m_asksNobody = false;
};

} // namespace errors
