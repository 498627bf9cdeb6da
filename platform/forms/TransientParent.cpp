// SPDX-FileCopyrightText: 2026 The qmClient authors
// SPDX-License-Identifier: GPL-3.0-or-later
#include "platform/forms/TransientParent.h"

#include <QApplication>
#include <QWidget>
#include <QWindow>

namespace forms {

void standOver(QWidget& dialog, const QWidget* other) {
    dialog.winId(); // makes the window's handle
    const QWidget* window = other == nullptr ? nullptr : other->window();
    const bool isAnother = window != nullptr && window != &dialog;
    dialog.windowHandle()->setTransientParent(isAnother ? window->windowHandle() : nullptr);
}

void standOverTheActiveWindow(QWidget& dialog) {
    standOver(dialog, QApplication::activeWindow());
}

} // namespace forms
