// SPDX-FileCopyrightText: 2026 The qmClient authors
// SPDX-License-Identifier: GPL-3.0-or-later
#include "platform/shell/LogOnDialog.h"

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

LogOnDialog::LogOnDialog(const LogOnTexts& texts, const QString& user, const QString& domain) {
    setObjectName(QStringLiteral("LogOn"));
    setWindowTitle(texts.caption);
    setWindowFlag(Qt::WindowContextHelpButtonHint, false);
    auto* column = new QVBoxLayout(this);
    column->addLayout(new QFormLayout);
    m_txtUser = addField(QStringLiteral("txtUser"), texts.user);
    m_txtDomain = addField(QStringLiteral("txtDomain"), texts.domain);
    m_txtPassword = addField(QStringLiteral("txtPassword"), texts.password);
    m_txtPassword->setEchoMode(QLineEdit::Password);
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

} // namespace shell
