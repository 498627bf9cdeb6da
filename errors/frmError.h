// SPDX-FileCopyrightText: 2026 The qmClient authors
// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once
// The modal dialog that tells what failed and asks what to do. One instance serves all failures of a run: its
// buttons hide it. Closing it by its frame or with Escape leaves the answer empty, which aborts; so does the
// button that Return presses, for the dialog can come up while somebody types. Nothing in here reports
// errors, as a report would show this dialog again. User-interface thread.
//
// Height is a logical property in twips with two values; the window is drawn at least that high, and higher
// where texts need it.

#include "errors/ErrorControls.h"
#include "errors/ErrorDialog.h"
#include "errors/ProgramFacts.h"
#include "errors/ReportSender.h"
#include "platform/basic/Twips.h"

#include <QDialog>

namespace errors {

// Belongs to the run, not to a dialog: the next failure opens it as the user left it.
struct ErrorDialogState {
    bool detailsExpanded = false;
};

// No trap (frmError): a report of its failure would show the very dialog that fails.
class frmError final : public QDialog, public ErrorDialog {
    Q_OBJECT
public:
    static constexpr basic::Twips kCollapsedHeight{2460};
    static constexpr basic::Twips kExpandedHeight{4965};

    // `state` must outlive the dialog, as must `sender` unless it is null; without one, cmdSend is not shown.
    frmError(const ProgramFacts& facts, ErrorDialogState& state, ReportSender* sender);

    void setErrorNumber(std::int32_t number) override { m_number = number; }
    void setLineNumber(std::int32_t line) override { m_line = line; }
    void setDescription(std::string_view description) override;
    void setProcedureName(std::string_view procedure) override;
    void setModuleName(std::string_view module) override;
    void Init() override;
    void showModal() override;
    std::string answer() const override { return m_answer; }

    basic::Twips Height() const { return m_height; }

private:
    void Form_Load(const ProgramFacts& facts);
    void connectButtons();
    void answerWith(const char* letter);
    void cmdDetails_Click();
    void cmdSend_Click();
    void setHeight(basic::Twips height);

    ErrorDialogState& m_state;
    ReportSender* m_sender;
    ErrorControls m_controls;
    std::int32_t m_number = 0;
    std::int32_t m_line = 0;
    QString m_description;
    QString m_procedure;
    QString m_module;
    QString m_error; // the content of txtError with its own line ends
    std::string m_answer;
    basic::Twips m_height = kCollapsedHeight;
};

} // namespace errors
