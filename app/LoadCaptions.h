// SPDX-FileCopyrightText: 2026 The qmClient authors
// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once
// Sets the window's caption and every localised text of the command bar, once, while the window loads.
// Failures are reported as frmMain's LoadCaptions.

#include "errors/ErrorHandler.h"
#include "platform/forms/CommandBar.h"

#include <QWidget>

namespace app {

void LoadCaptions(errors::ErrorHandler& errorHandler, QWidget& window, forms::CommandBar& ab);

} // namespace app
