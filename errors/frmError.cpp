// SPDX-FileCopyrightText: 2026 The qmClient authors
// SPDX-License-Identifier: GPL-3.0-or-later
#include "errors/frmError.h"

#include "errors/ErrorsIgnored.h"
#include "platform/forms/Text.h"
#include "platform/forms/TransientParent.h"
#include "resources/ProductData.h"
#include "resources/StringTable.h"

#include <QLabel>
#include <QLayout>
#include <QLineEdit>
#include <QPlainTextEdit>
#include <QPushButton>

#include <algorithm>

namespace errors {
namespace {

// Wide enough for comfortable lines of the explanation in the font of the moment.
constexpr int kLineLength = 100;

void showFromItsStart(QLineEdit& field, const QString& text) {
    field.setText(text);
    field.setCursorPosition(0);
}

} // namespace

frmError::frmError(const ProgramFacts& facts, ErrorDialogState& state, ReportSender* sender)
    : m_state(state), m_sender(sender), m_controls(*this) {
    Form_Load(facts);
    connectButtons();
}

void frmError::Form_Load(const ProgramFacts& facts) {
    setObjectName(QStringLiteral("frmError"));
    setWindowTitle(forms::toQString(resources::kProductTitle));
    setWindowFlag(Qt::WindowContextHelpButtonHint, false);
    showFromItsStart(*m_controls.txtComponent, forms::toQString(facts.component));
    showFromItsStart(*m_controls.txtVersion, forms::toQString(facts.version));
    showFromItsStart(*m_controls.txtOS, forms::toQString(GetWinVer(facts.getVersionEx)));
    m_controls.cmdSend->setVisible(m_sender != nullptr);
    m_controls.cmdCancel->setDefault(true);
    setHeight(kCollapsedHeight);
}

void frmError::connectButtons() {
    connect(m_controls.cmdIgnore, &QPushButton::clicked, this, [this] { answerWith("I"); });
    connect(m_controls.cmdRetry, &QPushButton::clicked, this, [this] { answerWith("R"); });
    connect(m_controls.cmdCancel, &QPushButton::clicked, this, [this] { answerWith("A"); });
    connect(m_controls.cmdDetails, &QPushButton::clicked, this, &frmError::cmdDetails_Click);
    connect(m_controls.cmdSend, &QPushButton::clicked, this, &frmError::cmdSend_Click);
}

void frmError::setDescription(std::string_view description) {
    m_description = forms::toQString(description);
}

void frmError::setProcedureName(std::string_view procedure) {
    m_procedure = forms::toQString(procedure);
}

void frmError::setModuleName(std::string_view module) {
    m_module = forms::toQString(module);
}

void frmError::Init() {
    m_answer.clear();
    m_error = m_description + QStringLiteral("\r\nErrNumber: ") + QString::number(m_number) +
              QStringLiteral("\r\nErrLine: ") + QString::number(m_line);
    m_controls.txtError->setPlainText(m_error);
    showFromItsStart(*m_controls.txtModule, m_module + QStringLiteral(" - ") + m_procedure);
    if (m_height == kCollapsedHeight && m_state.detailsExpanded)
        cmdDetails_Click();
}

// The window in front is another one from failure to failure.
void frmError::showModal() {
    m_controls.cmdCancel->setFocus();
    forms::standOverTheActiveWindow(*this);
    exec();
}

void frmError::answerWith(const char* letter) {
    m_answer = letter;
    hide();
}

void frmError::cmdDetails_Click() {
    const bool expands = m_height == kCollapsedHeight;
    setHeight(expands ? kExpandedHeight : kCollapsedHeight);
    setCaption(*m_controls.cmdDetails,
               forms::toQString(expands ? resources::LoadLocalString(5020, "Details <<")
                                        : resources::LoadLocalString(110, "Details >>")));
    m_state.detailsExpanded = expands;
}

void frmError::cmdSend_Click() {
    // Reporting a failure of it would show this dialog again.
    withErrorsIgnored([&] {
        m_sender->send({m_controls.txtComponent->text(), m_controls.txtVersion->text(),
                        m_controls.txtModule->text(), m_controls.txtOS->text(), m_error},
                       *this);
    });
}

void frmError::setHeight(basic::Twips height) {
    m_height = height;
    m_controls.details->setVisible(height != kCollapsedHeight);
    layout()->activate();
    // The explanation wraps, so the height needed follows from the least width.
    const int leastWidth =
        std::max(fontMetrics().averageCharWidth() * kLineLength, layout()->totalMinimumSize().width());
    setMinimumSize(leastWidth, std::max(layout()->totalHeightForWidth(leastWidth), basic::toPixels(height)));
    resize(isVisible() ? width() : leastWidth, minimumHeight());
}

} // namespace errors
