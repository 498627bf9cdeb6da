// SPDX-FileCopyrightText: 2026 The qmClient authors
// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once
// The platform's rule for windows beside a modal one. User-interface thread.

class QWidget;

namespace forms {

bool isModalUp();

// The modal window that is up comes to the front; false when there is none.
bool bringModalToFront();

// Shows a window without modality; error 401 while a modal window is up.
void showNonModal(QWidget& window);

} // namespace forms
