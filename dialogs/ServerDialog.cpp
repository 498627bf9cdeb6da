// SPDX-FileCopyrightText: 2026 The qmClient authors
// SPDX-License-Identifier: GPL-3.0-or-later
#include "dialogs/ServerDialog.h"

#include "platform/forms/TransientParent.h"

#include <QLineEdit>

namespace dialogs {

std::optional<QString> ServerDialog::select(QWidget* owner, const QString& current) {
    if (!m_form)
        m_form = std::make_unique<frmServer>(m_services);
    m_form->txtServer().setText(current);
    forms::standOver(*m_form, owner);
    m_form->exec();
    return m_form->Cancelled() ? std::nullopt : std::optional(m_form->txtServer().text());
}

} // namespace dialogs
