// SPDX-FileCopyrightText: 2026 The qmClient authors
// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once
// What the platform's headers offer as macros over the messages of a list view. Item numbers count from 0.
// User-interface thread.

#include "platform/forms/ListView.h"

namespace forms {

// Changes the style bits of the mask to those of the style; answers the former style.
std::uint32_t ListView_SetExtendedListViewStyleEx(ListView& list, std::uint32_t mask, std::uint32_t style);

// An item without a check box counts as checked.
bool ListView_GetCheckState(ListView& list, int item);
void ListView_SetCheckState(ListView& list, int item, bool isChecked);

// Each row is selected over its whole width.
void selectFullRows(ListView& list);

} // namespace forms
