// SPDX-FileCopyrightText: 2026 The qmClient authors
// SPDX-License-Identifier: GPL-3.0-or-later
#include "platform/forms/QtMessageBoxes.h"

#include "platform/basic/RuntimeError.h"
#include "platform/forms/TransientParent.h"

#include <QMessageBox>
#include <QPushButton>

#include <utility>
#include <vector>

namespace forms {
namespace {

constexpr std::int32_t kButtonMask = 0xF;
constexpr std::int32_t kIconMask = 0xF0;
constexpr std::int32_t kDefaultMask = 0xF00;

std::vector<QMessageBox::StandardButton> buttonsOf(std::int32_t style) {
    switch (style & kButtonMask) {
    case kOkOnly:
        return {QMessageBox::Ok};
    case kOkCancel:
        return {QMessageBox::Ok, QMessageBox::Cancel};
    case kYesNoCancel:
        return {QMessageBox::Yes, QMessageBox::No, QMessageBox::Cancel};
    default:
        throw basic::RuntimeError(basic::kInvalidProcedureCall);
    }
}

QMessageBox::Icon iconOf(std::int32_t style) {
    switch (style & kIconMask) {
    case 0:
        return QMessageBox::NoIcon;
    case kQuestion:
        return QMessageBox::Question;
    case kExclamation:
        return QMessageBox::Warning;
    case kInformation:
        return QMessageBox::Information;
    default:
        throw basic::RuntimeError(basic::kInvalidProcedureCall);
    }
}

MessageBoxResult resultOf(int button) {
    switch (button) {
    case QMessageBox::Ok:
        return MessageBoxResult::Ok;
    case QMessageBox::Yes:
        return MessageBoxResult::Yes;
    case QMessageBox::No:
        return MessageBoxResult::No;
    default:
        return MessageBoxResult::Cancel;
    }
}

} // namespace

QtMessageBoxes::QtMessageBoxes(MessageBoxButtonTexts buttons, QString programTitle)
    : m_buttons(std::move(buttons)), m_programTitle(std::move(programTitle)) {}

MessageBoxResult QtMessageBoxes::show(const QString& text, std::int32_t style, const QString& title) {
    QMessageBox box;
    box.setTextFormat(Qt::PlainText);
    box.setText(text);
    box.setWindowTitle(title.isEmpty() ? m_programTitle : title);
    box.setIcon(iconOf(style));
    addButtons(box, style);
    standOverTheActiveWindow(box);
    return resultOf(box.exec());
}

// The last button of each set is the one that the frame's close stands for.
void QtMessageBoxes::addButtons(QMessageBox& box, std::int32_t style) const {
    const std::vector<QMessageBox::StandardButton> buttons = buttonsOf(style);
    const std::int32_t wanted = (style & kDefaultMask) / kDefaultButton2;
    std::int32_t position = 0;
    for (const QMessageBox::StandardButton kind : buttons) {
        QPushButton* button = box.addButton(kind);
        button->setText(kind == QMessageBox::Ok    ? m_buttons.ok
                        : kind == QMessageBox::Yes ? m_buttons.yes
                        : kind == QMessageBox::No  ? m_buttons.no
                                                   : m_buttons.cancel);
        if (position++ == wanted)
            box.setDefaultButton(button);
    }
    box.setEscapeButton(buttons.back());
}

} // namespace forms
