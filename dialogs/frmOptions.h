// SPDX-FileCopyrightText: 2026 The qmClient authors
// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once
// The options: server, poll interval and the mailboxes to watch. Edits the settings object that it is given;
// OK saves it, everything else (the button, Escape, the frame) puts it back as it was and counts as Cancel.
// The list is filled when the search for the server's mailboxes is over and no other modal window is in
// front; until then there is nothing to confirm, and the dialog lives on. Shown modally and not reused.
// Failures are reported under frmOptions; those of the search under Init, which it belongs to. User-interface
// thread; what it is given must outlive it.

#include "data/basCommon.h"
#include "data/clsConfig.h"
#include "dialogs/MailboxSearch.h"
#include "dialogs/OptionsControls.h"
#include "dialogs/OptionsList.h"
#include "dialogs/ServerSelection.h"
#include "errors/Procedure.h"

#include <QDialog>

#include <memory>

namespace dialogs {

struct OptionsServices {
    MailboxSearch& search;
    ServerSelection& servers;
};

class frmOptions final : public QDialog {
    Q_OBJECT
public:
    frmOptions(errors::ErrorHandler& errorHandler, const data::basCommon& common,
               const OptionsServices& services, QWidget* owner);
    ~frmOptions() override;

    // What is to be edited; before Init().
    void setConfig(std::shared_ptr<data::clsConfig> config);
    void Init();
    // False after OK.
    bool Cancelled() const { return m_isCancelled; }

public Q_SLOTS:
    // Cancel.
    void reject() override;

private:
    // The settings as they were when the dialog opened.
    struct Before {
        std::string ServerName;
        std::int32_t PollInterval = 0;
        data::MailboxCollection Mailboxes;
    };

    void Form_Load();
    void setCaptions();
    void cmdOK_Click();
    void cmdServer_Click();
    void beginSearch();
    void showProgress(int read, int total);
    void setSearching(bool isSearching);
    bool isInFront() const;
    void fill(const FoundMailboxes& found);
    std::int32_t typedInterval() const;
    void putBack();

    errors::ErrorHandler& m_errors;
    const data::basCommon& m_common;
    MailboxSearch& m_search;
    ServerSelection& m_servers;
    OptionsControls m_controls;
    OptionsList m_list;
    std::shared_ptr<data::clsConfig> m_config; // null once cancelled
    Before m_before;
    bool m_isCancelled = true;
};

} // namespace dialogs
