// SPDX-FileCopyrightText: 2026 The qmClient authors
// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once
// The mailbox that a command for the selected call works on.

#include "data/clsConfig.h"
#include "platform/forms/TabStrip.h"

#include <cstdint>
#include <optional>

namespace app {

// The ID in the selected tab's key; with fewer than two tabs the first configured mailbox's, whatever the
// tab. Nothing with several tabs of which none is selected.
std::optional<std::int32_t> chosenMailbox(int tabCount, const std::optional<forms::Tab>& selected,
                                          const data::clsConfig& config);

} // namespace app
