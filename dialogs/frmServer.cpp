// SPDX-FileCopyrightText: 2026 The qmClient authors
// SPDX-License-Identifier: GPL-3.0-or-later
#include "dialogs/frmServer.h"

#include "platform/forms/Text.h"
#include "platform/forms/WindowHandle.h"
#include "resources/LocalText.h"

#include <QGridLayout>
#include <QLabel>
#include <QLineEdit>
#include <QPushButton>
#include <QScopeGuard>

#include <utility>

namespace dialogs {
namespace {

using resources::localText;

constexpr int kFieldLength = 36; // characters that show at once

QString notConnected(const std::string& path) {
    return localText(103, "Unable to connect to Quillamar Server:  '%1'.")
        .replace(QStringLiteral("%1"), forms::toQString(path));
}

} // namespace

frmServer::frmServer(Services services, QWidget* parent)
    : QDialog(parent), m_services(std::move(services)), m_Label2(new QLabel(this)),
      m_txtServer(new QLineEdit(this)), m_cmdBrowse(new QPushButton(this)), m_OKButton(new QPushButton(this)),
      m_CancelButton(new QPushButton(this)) {
    Form_Load();
    layOut();
    connect(m_cmdBrowse, &QPushButton::clicked, this, &frmServer::cmdBrowse_Click);
    connect(m_OKButton, &QPushButton::clicked, this, &frmServer::OKButton_Click);
    connect(m_CancelButton, &QPushButton::clicked, this, &frmServer::CancelButton_Click);
}

// No trap (frmServer, Form_Load): sets captions only.
void frmServer::Form_Load() {
    setObjectName(QStringLiteral("frmServer"));
    setWindowTitle(localText(3754, "Select Quillamar Server"));
    setWindowFlag(Qt::WindowContextHelpButtonHint, false);
    m_Label2->setObjectName(QStringLiteral("Label2"));
    m_Label2->setText(localText(3755, "Server-Name:"));
    m_Label2->setBuddy(m_txtServer);
    m_txtServer->setObjectName(QStringLiteral("txtServer"));
    m_cmdBrowse->setObjectName(QStringLiteral("cmdBrowse"));
    m_cmdBrowse->setText(localText(3756, "Browse Network"));
    m_OKButton->setObjectName(QStringLiteral("OKButton"));
    m_OKButton->setText(localText(122, "OK"));
    m_OKButton->setDefault(true);
    m_CancelButton->setObjectName(QStringLiteral("CancelButton"));
    m_CancelButton->setText(localText(114, "Cancel"));
}

void frmServer::layOut() {
    auto* grid = new QGridLayout(this);
    m_txtServer->setMinimumWidth(kFieldLength * fontMetrics().averageCharWidth());
    grid->addWidget(m_Label2, 0, 0);
    grid->addWidget(m_txtServer, 0, 1);
    grid->addWidget(m_cmdBrowse, 0, 2);
    auto* buttons = new QHBoxLayout;
    buttons->addStretch();
    buttons->addWidget(m_OKButton);
    buttons->addWidget(m_CancelButton);
    grid->addLayout(buttons, 2, 0, 1, 3);
    grid->setRowMinimumHeight(1, fontMetrics().height() / 2);
    grid->setRowStretch(1, 1);
    grid->setColumnStretch(1, 1);
}

void frmServer::showEvent(QShowEvent* event) {
    m_cancelled = true;
    m_txtServer->setFocus();
    m_txtServer->selectAll();
    QDialog::showEvent(event);
}

void frmServer::reject() {
    CancelButton_Click();
}

void frmServer::cmdBrowse_Click() {
    errors::Procedure proc{m_services.errorHandler, "frmServer", "cmdBrowse_Click"};
    std::string name;
    proc.step([&] { name = m_services.browser.GetBrowseNetworkWorkstation(forms::handleOf(*this)); });
    if (!name.empty() && isVisible())
        proc.step([&] { m_txtServer->setText(forms::toQString(name)); });
}

// While the server is asked, the program may be told to end, which closes this dialog: then there is nobody
// to tell anything.
void frmServer::OKButton_Click() {
    errors::Procedure proc{m_services.errorHandler, "frmServer", "OKButton_Click"};
    if (m_isChecking)
        return;
    std::string path;
    proc.step([&] { path = m_services.common.GetQMPath(forms::fromQString(m_txtServer->text())); });
    const bool exists = proc.value(false, [&] { return reaches(path); });
    if (!proc.running() || !isVisible())
        return;
    if (!exists) {
        proc.step([&] { m_services.messageBoxes.show(notConnected(path), forms::kExclamation, {}); });
        return;
    }
    proc.step([&] { m_cancelled = false; });
    proc.step([&] { done(Accepted); });
}

// The cursor is this window's only: who logs on may be asked meanwhile.
bool frmServer::reaches(const std::string& path) {
    m_isChecking = true;
    setCursor(Qt::BusyCursor);
    const auto end = qScopeGuard([this] {
        unsetCursor();
        m_isChecking = false;
    });
    return m_services.isReachable(path);
}

void frmServer::CancelButton_Click() {
    errors::Procedure proc{m_services.errorHandler, "frmServer", "CancelButton_Click"};
    proc.step([&] { m_cancelled = true; });
    proc.step([&] { done(Rejected); });
}

} // namespace dialogs
