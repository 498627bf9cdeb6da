// SPDX-FileCopyrightText: 2026 The qmClient authors
// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once
// The command bar's bands and tools as they are laid out, before LoadCaptions gives them the user's language.

#include "platform/forms/CommandBar.h"

namespace app {

// Index of each band.
inline constexpr int kBandStatus = 0;
inline constexpr int kBandMenu = 1;
inline constexpr int kBandFile = 2;
inline constexpr int kBandHelp = 3;
inline constexpr int kBandEdit = 4;
inline constexpr int kBandTools = 5;
inline constexpr int kBandPopup = 6;

void layOutCommandBar(forms::CommandBar& ab);

} // namespace app
