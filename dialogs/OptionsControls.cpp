// SPDX-FileCopyrightText: 2026 The qmClient authors
// SPDX-License-Identifier: GPL-3.0-or-later
#include "dialogs/OptionsControls.h"

#include "platform/forms/CVTab.h"
#include "platform/forms/ListView.h"

#include <QDialog>
#include <QGridLayout>
#include <QLabel>
#include <QLineEdit>
#include <QProgressBar>
#include <QPushButton>
#include <QVBoxLayout>

namespace dialogs {
namespace {

constexpr int kShownMailboxes = 10;
constexpr int kIntervalDigits = 8;
constexpr int kLineLength = 84; // of the explanation, in characters

template <typename Control>
Control* named(Control* control, const char* name) {
    control->setObjectName(QString::fromLatin1(name));
    return control;
}

QLabel* label(const char* name) {
    auto* label = named(new QLabel, name);
    label->setTextFormat(Qt::PlainText);
    return label;
}

void keepsItsRoom(QWidget& control) {
    QSizePolicy policy = control.sizePolicy();
    policy.setRetainSizeWhenHidden(true);
    control.setSizePolicy(policy);
}

} // namespace

OptionsControls::OptionsControls(QDialog& dialog) {
    auto* column = new QVBoxLayout(&dialog);
    CVTab1 = named(new forms::CVTab, "CVTab1");
    column->addWidget(CVTab1, 1);
    QWidget& page = CVTab1->AddTab({});
    new QVBoxLayout(&page);
    addFields(page);
    addList(page);
    addButtons(dialog);
    chainTabs();
}

void OptionsControls::addFields(QWidget& page) {
    Frame1 = named(new QFrame, "Frame1");
    auto* grid = new QGridLayout(Frame1);
    grid->setContentsMargins({});
    page.layout()->addWidget(Frame1);
    Label1 = label("Label1");
    txtServer = named(new QLineEdit, "txtServer");
    txtServer->setReadOnly(true);
    Label1->setBuddy(txtServer);
    cmdServer = named(new QPushButton(QStringLiteral("...")), "cmdServer");
    cmdServer->setMaximumWidth(2 * cmdServer->sizeHint().height()); // styles make buttons as wide as a word
    grid->addWidget(Label1, 0, 0);
    grid->addWidget(txtServer, 0, 1, 1, 2);
    grid->addWidget(cmdServer, 0, 3);
    Label2 = label("Label2");
    txtInterval = named(new QLineEdit, "txtInterval");
    txtInterval->setFixedWidth(kIntervalDigits * txtInterval->fontMetrics().averageCharWidth() * 2);
    Label2->setBuddy(txtInterval);
    Label3 = label("Label3");
    grid->addWidget(Label2, 1, 0);
    grid->addWidget(txtInterval, 1, 1);
    grid->addWidget(Label3, 1, 2, 1, 2);
    grid->setColumnStretch(2, 1);
}

void OptionsControls::addList(QWidget& page) {
    auto* column = qobject_cast<QVBoxLayout*>(page.layout());
    lsMailboxes = named(new forms::ListView, "lsMailboxes");
    lsMailboxes->setMinimumHeight(kShownMailboxes * lsMailboxes->fontMetrics().lineSpacing() * 3 / 2);
    column->addWidget(lsMailboxes, 1);
    Label4 = label("Label4");
    Label4->setWordWrap(true);
    column->addWidget(Label4);
    auto* search = new QHBoxLayout;
    lblSearch = label("lblSearch");
    barSearch = named(new QProgressBar, "barSearch");
    for (QWidget* control : {static_cast<QWidget*>(lblSearch), static_cast<QWidget*>(barSearch)}) {
        keepsItsRoom(*control);
        control->hide();
        search->addWidget(control);
    }
    column->addLayout(search);
}

void OptionsControls::addButtons(QDialog& dialog) {
    auto* row = new QHBoxLayout;
    row->addStretch();
    cmdOK = named(new QPushButton, "cmdOK");
    cmdCancel = named(new QPushButton, "cmdCancel");
    cmdOK->setDefault(true);
    row->addWidget(cmdOK);
    row->addWidget(cmdCancel);
    qobject_cast<QVBoxLayout*>(dialog.layout())->addLayout(row);
}

// A page of tabs does not ask its layout how high a wrapped text becomes.
void OptionsControls::reserveRoom() const {
    const int width = kLineLength * Label4->fontMetrics().averageCharWidth();
    Label4->setMinimumSize(width, Label4->heightForWidth(width));
}

void OptionsControls::chainTabs() const {
    QWidget::setTabOrder(txtServer, cmdServer);
    QWidget::setTabOrder(cmdServer, txtInterval);
    QWidget::setTabOrder(txtInterval, lsMailboxes->focusProxy());
    QWidget::setTabOrder(lsMailboxes->focusProxy(), cmdOK);
    QWidget::setTabOrder(cmdOK, cmdCancel);
}

} // namespace dialogs
