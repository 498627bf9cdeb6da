// SPDX-FileCopyrightText: 2026 The qmClient authors
// SPDX-License-Identifier: GPL-3.0-or-later
#include "platform/shell/LogOnDialog.h"

#include <QCheckBox>
#include <QFormLayout>
#include <QLabel>
#include <QLineEdit>
#include <QPushButton>
#include <QVBoxLayout>

namespace shell {
namespace {

constexpr int kFieldLength = 32; // characters that show at once
constexpr int kMostCharacters = 256;

QPushButton* addButton(QBoxLayout& row, const QString& name, const QString& caption) {
    auto* button = new QPushButton(caption);
    button->setObjectName(name);
    row.addWidget(button);
    return button;
}

} // namespace

LogOnDialog::LogOnDialog(const LogOnTexts& texts, const QString& user, const QString& domain,
                         Remembering remembering) {
    setObjectName(QStringLiteral("LogOn"));
    setWindowTitle(texts.caption);
    setWindowFlag(Qt::WindowContextHelpButtonHint, false);
    auto* column = new QVBoxLayout(this);
    column->addLayout(new QFormLayout);
    m_txtUser = addField(QStringLiteral("txtUser"), texts.user);
    m_txtDomain = addField(QStringLiteral("txtDomain"), texts.domain);
    m_txtPassword = addField(QStringLiteral("txtPassword"), texts.password);
    m_txtPassword->setEchoMode(QLineEdit::Password);
    addRemembering(texts, remembering);
    auto* row = new QHBoxLayout;
    column->addLayout(row);
    row->addStretch();
    QPushButton* ok = addButton(*row, QStringLiteral("OKButton"), texts.ok);
    ok->setDefault(true);
    connect(ok, &QPushButton::clicked, this, &QDialog::accept);
    connect(addButton(*row, QStringLiteral("CancelButton"), texts.cancel), &QPushButton::clicked, this,
            &QDialog::reject);
    connect(m_txtUser, &QLineEdit::textChanged, ok,
            [ok](const QString& text) { ok->setEnabled(!text.isEmpty()); });
    ok->setEnabled(!user.isEmpty());
    m_txtUser->setText(user);
    m_txtDomain->setText(domain);
    (user.isEmpty() ? m_txtUser : m_txtPassword)->setFocus();
}

void LogOnDialog::addRemembering(const LogOnTexts& texts, Remembering remembering) {
    m_chkRemember = new QCheckBox(texts.remember);
    m_chkRemember->setObjectName(QStringLiteral("chkRemember"));
    m_chkRemember->setChecked(remembering == Remembering::Chosen);
    layout()->addWidget(m_chkRemember);
    if (remembering != Remembering::Impossible)
        return;
    m_chkRemember->setEnabled(false);
    m_chkRemember->setAccessibleDescription(texts.cannotRemember);
    auto* reason = new QLabel(texts.cannotRemember);
    reason->setObjectName(QStringLiteral("lblCannotRemember"));
    reason->setTextFormat(Qt::PlainText);
    reason->setWordWrap(true);
    layout()->addWidget(reason);
}

QLineEdit* LogOnDialog::addField(const QString& name, const QString& caption) {
    auto* label = new QLabel(caption);
    label->setTextFormat(Qt::PlainText);
    auto* field = new QLineEdit;
    field->setObjectName(name);
    field->setMaxLength(kMostCharacters);
    field->setMinimumWidth(kFieldLength * fontMetrics().averageCharWidth());
    label->setBuddy(field);
    static_cast<QFormLayout*>(layout()->itemAt(0)->layout())->addRow(label, field);
    return field;
}

QString LogOnDialog::user() const {
    return m_txtUser->text();
}

QString LogOnDialog::domain() const {
    return m_txtDomain->text();
}

QString LogOnDialog::password() const {
    return m_txtPassword->text();
}

bool LogOnDialog::isToBeRemembered() const {
    return m_chkRemember->isChecked();
}

} // namespace shell
