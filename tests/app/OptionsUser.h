// SPDX-FileCopyrightText: 2026 The qmClient authors
// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once
// The user before the options dialog: does what the test wants as soon as it is on the screen, and cancels it
// otherwise.

#include "dialogs/frmOptions.h"

#include <QApplication>
#include <QEvent>

#include <functional>

namespace app {

class OptionsUser final : public QObject {
public:
    OptionsUser() { qApp->installEventFilter(this); }

    std::function<void(dialogs::frmOptions&)> action = [](dialogs::frmOptions& dialog) { dialog.reject(); };
    int seen = 0;

protected:
    bool eventFilter(QObject* watched, QEvent* event) override {
        auto* dialog = qobject_cast<dialogs::frmOptions*>(watched);
        if (dialog != nullptr && event->type() == QEvent::Show) {
            ++seen;
            QMetaObject::invokeMethod(
                dialog, [this, dialog] { action(*dialog); }, Qt::QueuedConnection);
        }
        return false;
    }
};

} // namespace app
