// SPDX-FileCopyrightText: 2026 The qmClient authors
// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once
// The window that shows one call in full. It asks for nothing by itself: from Init to UnInit it follows the
// selection, also while it is hidden, and reads the announced call before the announcement is through.
// Closing hides it. Failures are reported under the module "frmCallDetails". Its owner shares it with its own
// procedures, which may let events run while the owner drops it; so it is made with make_shared. What it is
// given must outlive it; user-interface thread.

#include "dialogs/CallDetailsControls.h"
#include "dialogs/CallFields.h"
#include "dialogs/CallSelection.h"
#include "errors/Procedure.h"
#include "platform/forms/Clipboard.h"
#include "platform/forms/ImageList.h"

#include <QDialog>

namespace dialogs {

struct CallDetailsServices {
    errors::ErrorHandler& errorHandler;
    forms::Clipboard& clipboard;
    const basic::DateTimeFormat& dateTimeFormat;
    QLocale locale; // of the long date and time
};

class frmCallDetails : public QDialog, public std::enable_shared_from_this<frmCallDetails> {
    Q_OBJECT
public:
    frmCallDetails(const CallDetailsServices& services, QWidget* owner);

    void Init(CallSelection& mainForm);
    void UnInit() noexcept;

private:
    void Form_Initialize();
    void MainForm_ItemChanged(const std::shared_ptr<jet::Connection>& connection, const std::string& callID);
    void LoadData();
    void cmdUp_Click();
    void cmdDown_Click();
    void cmdCopy_Click();

    void setTabCaption();
    void clear();
    void showCall(errors::Procedure& proc, jet::Recordset& records);
    void showControls();
    void showMessage(const CallFields& fields);
    void showNoCall();
    void drawPicture();
    std::string copiedText() const;

    CallDetailsServices m_services;
    CallDetailsControls m_controls;
    forms::ImageList m_ImageList1;
    CallSelection* m_MainForm = nullptr;
    QMetaObject::Connection m_subscription;
    std::shared_ptr<jet::Connection> m_connection;
    std::string m_PropCallEntry = "-1";
    int m_icon = 0;                         // index into m_ImageList1
    std::string m_details;                  // as they are, line breaks included
    errors::Procedure* m_loading = nullptr; // the LoadData that is at work
};

} // namespace dialogs
