// SPDX-FileCopyrightText: 2026 The qmClient authors
// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once
// What the call list and the tab strip have from the start: their names, their images and what is read aloud
// of them. User-interface thread.

#include "platform/forms/ListView.h"
#include "platform/forms/TabStrip.h"

namespace app {

void prepareListAndTabs(forms::ListView& list, forms::TabStrip& tabStrip);

} // namespace app
