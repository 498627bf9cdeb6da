// SPDX-FileCopyrightText: 2026 The qmClient authors
// SPDX-License-Identifier: GPL-3.0-or-later
#include "errors/ErrorControls.h"

#include "platform/forms/Text.h"
#include "resources/StringTable.h"

#include <QDialog>
#include <QFontMetrics>
#include <QGridLayout>
#include <QLabel>
#include <QLineEdit>
#include <QPlainTextEdit>
#include <QPushButton>
#include <QStyle>
#include <QVBoxLayout>

namespace errors {
namespace {

using forms::toQString;
using resources::LoadLocalString;

QPushButton* addButton(QBoxLayout& row, QDialog& dialog, const QString& name, const QString& caption) {
    auto* button = new QPushButton(&dialog);
    button->setObjectName(name);
    setCaption(*button, caption);
    row.addWidget(button);
    return button;
}

void addLabel(QGridLayout& grid, QWidget& field, const QString& name, const std::string& caption,
              Qt::Alignment alignment) {
    auto* label = new QLabel(toQString(caption));
    label->setObjectName(name);
    label->setTextFormat(Qt::PlainText);
    label->setBuddy(&field);
    grid.addWidget(label, grid.rowCount(), 0, alignment);
}

QLineEdit* addField(QGridLayout& grid, const QString& name, const std::string& caption) {
    auto* field = new QLineEdit;
    field->setObjectName(QStringLiteral("txt") + name);
    field->setReadOnly(true);
    addLabel(grid, *field, QStringLiteral("lbl") + name, caption, Qt::AlignVCenter);
    grid.addWidget(field, grid.rowCount() - 1, 1);
    return field;
}

QPlainTextEdit* addTextBox(QGridLayout& grid, const QString& name, const std::string& caption) {
    auto* box = new QPlainTextEdit;
    box->setObjectName(QStringLiteral("txt") + name);
    // Not to be edited; the keyboard reaches and scrolls it too, so a long description is no mouse matter.
    box->setTextInteractionFlags(Qt::TextSelectableByMouse | Qt::TextSelectableByKeyboard);
    box->setMinimumHeight(4 * box->fontMetrics().lineSpacing());
    addLabel(grid, *box, QStringLiteral("lbl") + name, caption, Qt::AlignTop);
    grid.addWidget(box, grid.rowCount() - 1, 1);
    grid.setRowStretch(grid.rowCount() - 1, 1);
    return box;
}

} // namespace

void setCaption(QPushButton& button, const QString& caption) {
    button.setText(caption);
    button.setShortcut(QKeySequence(QStringLiteral("Alt+") + caption.left(1)));
}

ErrorControls::ErrorControls(QDialog& dialog) {
    auto* column = new QVBoxLayout(&dialog);
    addExplanation(*column, dialog);
    addButtons(*column, dialog);
    addDetails(*column, dialog);
}

void ErrorControls::addExplanation(QBoxLayout& column, QDialog& dialog) {
    auto* row = new QHBoxLayout;
    column.addLayout(row, 1);
    auto* sign = new QLabel(&dialog);
    const int side = dialog.style()->pixelMetric(QStyle::PM_LargeIconSize, nullptr, &dialog);
    sign->setPixmap(dialog.style()
                        ->standardIcon(QStyle::SP_MessageBoxCritical)
                        .pixmap(QSize(side, side), dialog.devicePixelRatio()));
    row->addWidget(sign, 0, Qt::AlignTop);
    row->addSpacing(6);
    lblMain = new QLabel(toQString(LoadLocalString(120)), &dialog);
    lblMain->setObjectName(QStringLiteral("lblMain"));
    lblMain->setTextFormat(Qt::PlainText);
    lblMain->setWordWrap(true);
    lblMain->setAlignment(Qt::AlignLeading | Qt::AlignTop);
    row->addWidget(lblMain, 1);
}

void ErrorControls::addButtons(QBoxLayout& column, QDialog& dialog) {
    auto* row = new QHBoxLayout;
    column.addLayout(row);
    cmdDetails =
        addButton(*row, dialog, QStringLiteral("cmdDetails"), toQString(LoadLocalString(110, "Details >>")));
    row->addStretch(1);
    cmdSend = addButton(*row, dialog, QStringLiteral("cmdSend"), toQString(LoadLocalString(111, "Send")));
    cmdIgnore =
        addButton(*row, dialog, QStringLiteral("cmdIgnore"), toQString(LoadLocalString(112, "Ignore")));
    cmdRetry =
        addButton(*row, dialog, QStringLiteral("cmdRetry"), toQString(LoadLocalString(113, "Try again")));
    cmdCancel =
        addButton(*row, dialog, QStringLiteral("cmdCancel"), toQString(LoadLocalString(114, "Cancel")));
}

void ErrorControls::addDetails(QBoxLayout& column, QDialog& dialog) {
    details = new QWidget(&dialog);
    column.addWidget(details, 3);
    auto* grid = new QGridLayout(details);
    grid->setContentsMargins(0, 0, 0, 0);
    txtComponent = addField(*grid, QStringLiteral("Component"), LoadLocalString(117, "Component:"));
    txtVersion = addField(*grid, QStringLiteral("Version"), LoadLocalString(116, "Version:"));
    txtModule = addField(*grid, QStringLiteral("Module"), LoadLocalString(118, "Module, Function:"));
    txtOS = addField(*grid, QStringLiteral("OS"), LoadLocalString(115, "OS:"));
    txtError = addTextBox(*grid, QStringLiteral("Error"), LoadLocalString(119, "Error-Description:"));
}

} // namespace errors
