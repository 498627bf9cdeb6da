// SPDX-FileCopyrightText: 2026 The qmClient authors
// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once
// Message boxes on the screen, above the window that is active when they come, which may go before them.
// Texts and titles are plain text; the buttons' texts are the program's, since the toolkit's follow the
// system's language and the packages installed. User-interface thread.

#include "platform/forms/MessageBoxes.h"

class QMessageBox;

namespace forms {

struct MessageBoxButtonTexts {
    QString ok;
    QString cancel;
    QString yes;
    QString no;
};

class QtMessageBoxes : public MessageBoxes {
public:
    QtMessageBoxes(MessageBoxButtonTexts buttons, QString programTitle);

    // Error 5 for a style that is none of the given ones.
    MessageBoxResult show(const QString& text, std::int32_t style, const QString& title) override;

private:
    void addButtons(QMessageBox& box, std::int32_t style) const;

    MessageBoxButtonTexts m_buttons;
    QString m_programTitle;
};

} // namespace forms
