// SPDX-FileCopyrightText: 2026 The qmClient authors
// SPDX-License-Identifier: GPL-3.0-or-later
#include "platform/forms/QtClipboard.h"

#include "platform/forms/Text.h"

#include <QClipboard>
#include <QGuiApplication>

namespace forms {

void QtClipboard::Clear() {
    QGuiApplication::clipboard()->clear();
}
void QtClipboard::SetText(std::string_view text) {
    QGuiApplication::clipboard()->setText(toQString(text));
}

} // namespace forms
