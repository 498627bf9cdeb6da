// SPDX-FileCopyrightText: 2026 The qmClient authors
// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once
// The modal dialog that asks for the server's name, typed or picked from the network, and takes it only when
// the server's share can be reached. The owner writes txtServer, runs the dialog, and reads Cancelled() and
// txtServer afterwards; it is hidden, not destroyed, and can be run again. Everything but OK counts as
// Cancel. What it is given must outlive it; user-interface thread.

#include "data/basCommon.h"
#include "dialogs/clsComBrowser.h"
#include "platform/forms/MessageBoxes.h"

#include <QDialog>

#include <functional>
#include <string>

class QLabel;
class QLineEdit;
class QPushButton;

namespace dialogs {

class frmServer final : public QDialog {
    Q_OBJECT
public:
    struct Services {
        errors::ErrorHandler& errorHandler;
        const data::basCommon& common;
        forms::MessageBoxes& messageBoxes;
        clsComBrowser& browser;
        // Whether the user can reach the share of this path now. Events may run meanwhile.
        std::function<bool(const std::string& path)> isReachable;
    };

    explicit frmServer(Services services, QWidget* parent = nullptr);

    QLineEdit& txtServer() { return *m_txtServer; }
    bool Cancelled() const { return m_cancelled; }

    void reject() override; // Escape and the frame

protected:
    void showEvent(QShowEvent* event) override;

private:
    void Form_Load();
    void layOut();
    void cmdBrowse_Click();
    void OKButton_Click();
    void CancelButton_Click();
    bool reaches(const std::string& path);

    Services m_services;
    QLabel* m_Label2;
    QLineEdit* m_txtServer;
    QPushButton* m_cmdBrowse;
    QPushButton* m_OKButton;
    QPushButton* m_CancelButton;
    bool m_cancelled = true;
    bool m_isChecking = false;
};

} // namespace dialogs
