// SPDX-FileCopyrightText: 2026 The qmClient authors
// SPDX-License-Identifier: GPL-3.0-or-later
#include "dialogs/CallDetailsControls.h"

#include "resources/Icons.h"
#include "resources/LocalText.h"
#include "resources/StringTable.h"

#include <QDialog>
#include <QFontMetrics>
#include <QGridLayout>
#include <QLabel>
#include <QPlainTextEdit>
#include <QPushButton>
#include <QVBoxLayout>

namespace dialogs {
namespace {

using resources::localText;

constexpr int kPictureSize = 32;
constexpr int kDetailLines = 5;
constexpr int kLineLength = 60; // characters of usual width
constexpr int kSpacing = 4;

QLabel* plainLabel(const QString& shown = {}) {
    auto* label = new QLabel(shown);
    label->setTextFormat(Qt::PlainText);
    return label;
}

// A value of any length wraps or is cut off, it never widens the dialog.
QLabel* valueLabel() {
    QLabel* label = plainLabel();
    label->setWordWrap(true);
    label->setTextInteractionFlags(Qt::TextSelectableByMouse);
    label->setSizePolicy(QSizePolicy::Ignored, QSizePolicy::Preferred);
    return label;
}

QLabel* addField(QGridLayout& grid, QLabel*& caption, const QString& captionText) {
    caption = plainLabel(captionText);
    QLabel* value = valueLabel();
    const int row = grid.rowCount();
    grid.addWidget(caption, row, 1, Qt::AlignTop | Qt::AlignLeading);
    grid.addWidget(value, row, 2);
    return value;
}

QPushButton* arrowButton(QDialog& dialog, const QIcon& icon, const QString& name, Qt::Key key) {
    auto* button = new QPushButton(icon, QString(), &dialog);
    button->setToolTip(name);
    button->setAccessibleName(name);
    button->setShortcut(QKeySequence(Qt::ALT | key));
    button->setSizePolicy(QSizePolicy::Fixed, QSizePolicy::Preferred);
    return button;
}

} // namespace

CallDetailsControls::CallDetailsControls(QDialog& dialog) {
    auto* column = new QVBoxLayout(&dialog);
    CVTab1 = new forms::CVTab(&dialog);
    column->addWidget(CVTab1, 1);
    addPage();
    addButtons(*column, dialog);
    nameAll();
    for (QWidget* control : all()) {
        QSizePolicy policy = control->sizePolicy();
        policy.setRetainSizeWhenHidden(true);
        control->setSizePolicy(policy);
    }
}

void CallDetailsControls::addPage() {
    QWidget& page = CVTab1->AddTab(resources::LoadLocalString(3677, "Detail Information"));
    auto* whole = new QGridLayout(&page);
    auto* grid = new QGridLayout;
    whole->addLayout(grid, 0, 0);
    picType = new forms::PictureBox;
    picType->setFixedSize(kPictureSize, kPictureSize);
    lblDate = addField(*grid, Label2, localText(131, "Date:"));
    lblCallID = addField(*grid, Label3, localText(130, "Call ID:"));
    lblCaller = addField(*grid, Label1, localText(132, "Caller:"));
    lblMessage = addField(*grid, Label7, localText(137, "Message:"));
    grid->addWidget(picType, 0, 0, grid->rowCount(), 1, Qt::AlignTop);
    addDetails(*grid);
    grid->setHorizontalSpacing(2 * kSpacing);
    grid->setVerticalSpacing(kSpacing);
    grid->setColumnStretch(2, 1);
    lblNoEvent = plainLabel();
    lblNoEvent->setWordWrap(true);
    lblNoEvent->setAlignment(Qt::AlignCenter);
    whole->addWidget(lblNoEvent, 0, 0); // over the fields; as a part of their grid it would close its gaps
}

void CallDetailsControls::addDetails(QGridLayout& grid) {
    Label11 = plainLabel(localText(135, "Details"));
    grid.addWidget(Label11, grid.rowCount(), 1, 1, 2);
    txtDetails = new QPlainTextEdit;
    // Not to be edited; the keyboard reaches and scrolls it.
    txtDetails->setTextInteractionFlags(Qt::TextSelectableByMouse | Qt::TextSelectableByKeyboard);
    const QFontMetrics metrics = txtDetails->fontMetrics();
    txtDetails->setMinimumSize(kLineLength * metrics.averageCharWidth(),
                               kDetailLines * metrics.lineSpacing());
    Label11->setBuddy(txtDetails);
    grid.addWidget(txtDetails, grid.rowCount(), 1, 1, 2);
    grid.setRowStretch(grid.rowCount() - 1, 1);
}

void CallDetailsControls::addButtons(QBoxLayout& column, QDialog& dialog) {
    cmdUp = arrowButton(dialog, resources::stepIcon(false), localText(5060, "Previous call"), Qt::Key_Up);
    cmdDown = arrowButton(dialog, resources::stepIcon(true), localText(5061, "Next call"), Qt::Key_Down);
    cmdCopy = new QPushButton(localText(5062, "Copy"), &dialog);
    Command1 = new QPushButton(localText(129, "Close"), &dialog);
    Command1->setDefault(true);
    auto* row = new QHBoxLayout;
    for (QPushButton* button : {cmdUp, cmdDown, cmdCopy})
        row->addWidget(button);
    row->addStretch(1);
    row->addWidget(Command1);
    column.addLayout(row);
}

void CallDetailsControls::nameAll() {
    const std::initializer_list<std::pair<QWidget*, const char*>> names{
        {CVTab1, "CVTab1"},         {picType, "picType"},     {Label2, "Label2"},
        {lblDate, "lblDate"},       {Label3, "Label3"},       {lblCallID, "lblCallID"},
        {Label1, "Label1"},         {lblCaller, "lblCaller"}, {Label7, "Label7"},
        {lblMessage, "lblMessage"}, {Label11, "Label11"},     {txtDetails, "txtDetails"},
        {lblNoEvent, "lblNoEvent"}, {cmdUp, "cmdUp"},         {cmdDown, "cmdDown"},
        {cmdCopy, "cmdCopy"},       {Command1, "Command1"}};
    for (const auto& [control, name] : names)
        control->setObjectName(QString::fromLatin1(name));
}

std::vector<QWidget*> CallDetailsControls::all() const {
    return {CVTab1,     picType, Label2,     lblDate,    Label3, lblCallID, Label1,  lblCaller, Label7,
            lblMessage, Label11, txtDetails, lblNoEvent, cmdUp,  cmdDown,   cmdCopy, Command1};
}

} // namespace dialogs
