// SPDX-FileCopyrightText: 2026 The qmClient authors
// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once
// The keys that click tools of the menus, so that they are seen there. Those of the list work while it has
// the focus, since buttons take Return and Space for themselves.

#include "platform/forms/CommandBar.h"

#include <QWidget>

namespace app {

void addShortcuts(forms::CommandBar& ab, QWidget& list);

} // namespace app
