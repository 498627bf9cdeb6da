// SPDX-FileCopyrightText: 2026 The qmClient authors
// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once
// Chooses a server by frmServer, of which one instance, made when it is first wanted, serves the whole run.
// User-interface thread.

#include "dialogs/ServerSelection.h"
#include "dialogs/frmServer.h"

#include <memory>
#include <utility>

namespace dialogs {

class ServerDialog final : public ServerSelection {
public:
    explicit ServerDialog(frmServer::Services services) : m_services(std::move(services)) {}

    std::optional<QString> select(QWidget* owner, const QString& current) override;

private:
    frmServer::Services m_services;
    std::unique_ptr<frmServer> m_form;
};

} // namespace dialogs
