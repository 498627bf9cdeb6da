// SPDX-FileCopyrightText: 2026 The qmClient authors
// SPDX-License-Identifier: GPL-3.0-or-later
#include "dialogs/frmAbout.h"

#include "errors/Procedure.h"
#include "platform/forms/Text.h"
#include "resources/Icons.h"
#include "resources/LocalText.h"
#include "resources/ProductData.h"

#include <QGridLayout>
#include <QLabel>
#include <QPushButton>

#include <utility>

namespace dialogs {
namespace {

using resources::localText;

constexpr int kLogoSize = 80;
constexpr qreal kTitleScale = 1.6;
constexpr int kWarningWidth = 54; // characters in a line

QString title() {
    return forms::toQString(resources::kProductTitle);
}

// The English text ends in a blank of its own, and both are kept.
QString version() {
    return localText(3674, "Version ") + u' ' + QString::number(resources::kVersionMajor) + u'.' +
           QString::number(resources::kVersionMinor) + u'.' + QString::number(resources::kVersionRevision);
}

QFont larger(QFont font) {
    font.setBold(true);
    font.setPointSizeF(font.pointSizeF() * kTitleScale);
    return font;
}

QLabel* plainLabel(const char* name, QWidget* parent) {
    auto* label = new QLabel(parent);
    label->setObjectName(QString::fromLatin1(name));
    label->setTextFormat(Qt::PlainText);
    return label;
}

} // namespace

frmAbout::frmAbout(errors::ErrorHandler& errorHandler, SystemInformation systemInformation, QWidget* parent)
    : QDialog(parent), m_errors(errorHandler), m_systemInformation(std::move(systemInformation)),
      m_Picture1(plainLabel("Picture1", this)), m_lblTitle(plainLabel("lblTitle", this)),
      m_lblVersion(plainLabel("lblVersion", this)), m_Label1(new QFrame(this)),
      m_lblDescription(plainLabel("lblDescription", this)),
      m_lblDisclaimer(plainLabel("lblDisclaimer", this)), m_cmdOK(new QPushButton(this)),
      m_cmdSysInfo(new QPushButton(this)) {
    layOut();
    Form_Load();
    connect(m_cmdOK, &QPushButton::clicked, this, &frmAbout::cmdOK_Click);
    connect(m_cmdSysInfo, &QPushButton::clicked, this, [this] { m_systemInformation.StartSysInfo(); });
}

void frmAbout::Form_Load() {
    errors::Procedure proc{m_errors, "frmAbout", "Form_Load"};
    proc.step([&] { setTexts(); });
    proc.step([&] { setWindowTitle(localText(3673, "About ") + title()); });
    proc.step([&] { m_lblVersion->setText(version()); });
    proc.step([&] { m_lblTitle->setText(title()); });
}

// No trap (frmAbout, setTexts): its caller's.
void frmAbout::setTexts() {
    setWindowTitle(localText(121, "About Quillamar"));
    m_cmdOK->setText(localText(122, "OK"));
    m_cmdSysInfo->setText(localText(123, "&System Info..."));
    m_lblDescription->setText(localText(124));
    m_lblDisclaimer->setText(localText(127));
    m_lblTitle->setText(localText(125, "Application Title"));
    m_lblVersion->setText(localText(126, "Version"));
}

void frmAbout::layOut() {
    setObjectName(QStringLiteral("frmAbout"));
    setWindowFlag(Qt::WindowContextHelpButtonHint, false);
    m_cmdOK->setObjectName(QStringLiteral("cmdOK"));
    m_cmdOK->setDefault(true);
    m_cmdSysInfo->setObjectName(QStringLiteral("cmdSysInfo"));
    m_Label1->setObjectName(QStringLiteral("Label1"));
    m_Label1->setFrameStyle(QFrame::HLine | QFrame::Sunken);
    m_Picture1->setPixmap(resources::programIcon().pixmap(QSize(kLogoSize, kLogoSize), devicePixelRatio()));
    m_lblTitle->setFont(larger(font()));
    m_lblDescription->setTextInteractionFlags(Qt::TextSelectableByMouse);
    m_lblDisclaimer->setWordWrap(true);
    m_lblDisclaimer->setMinimumWidth(kWarningWidth * fontMetrics().averageCharWidth());

    auto* texts = new QVBoxLayout;
    for (QWidget* part : {static_cast<QWidget*>(m_lblTitle), static_cast<QWidget*>(m_lblVersion),
                          static_cast<QWidget*>(m_Label1), static_cast<QWidget*>(m_lblDescription)})
        texts->addWidget(part);
    auto* buttons = new QVBoxLayout;
    buttons->addWidget(m_cmdOK);
    buttons->addWidget(m_cmdSysInfo);
    auto* grid = new QGridLayout(this);
    grid->setHorizontalSpacing(2 * grid->horizontalSpacing());
    grid->setVerticalSpacing(2 * grid->verticalSpacing());
    grid->addWidget(m_Picture1, 0, 0, Qt::AlignTop);
    grid->addLayout(texts, 0, 1, 1, 2);
    grid->addWidget(m_lblDisclaimer, 1, 0, 1, 2, Qt::AlignTop);
    grid->addLayout(buttons, 1, 2, Qt::AlignBottom);
    grid->setColumnStretch(1, 1);
    grid->setSizeConstraint(QLayout::SetFixedSize);
}

void frmAbout::cmdOK_Click() {
    errors::Procedure proc{m_errors, "frmAbout", "cmdOK_Click"};
    proc.step([&] { accept(); });
}

} // namespace dialogs
