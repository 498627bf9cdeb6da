// SPDX-FileCopyrightText: 2026 The qmClient authors
// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once
// Keeps a dialog above another window that it does not belong to: that one may go while the dialog is up, and
// a child on the stack would be destroyed with it. User-interface thread.

class QWidget;

namespace forms {

// From now on; above no window if `other` is null, has none on the screen, or is the dialog itself. A widget
// stands for its window.
void standOver(QWidget& dialog, const QWidget* other);

void standOverTheActiveWindow(QWidget& dialog);

} // namespace forms
