// SPDX-FileCopyrightText: 2026 The qmClient authors
// SPDX-License-Identifier: GPL-3.0-or-later
#include "platform/forms/ModalState.h"

#include "platform/basic/RuntimeError.h"

#include <QApplication>
#include <QWidget>

namespace forms {

bool isModalUp() {
    return QApplication::activeModalWidget() != nullptr;
}

bool bringModalToFront() {
    QWidget* const modal = QApplication::activeModalWidget();
    if (modal == nullptr)
        return false;
    modal->raise();
    modal->activateWindow();
    return true;
}

void showNonModal(QWidget& window) {
    if (isModalUp())
        throw basic::RuntimeError(basic::kNonModalWhileModal);
    window.show();
}

} // namespace forms
