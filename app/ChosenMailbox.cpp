// SPDX-FileCopyrightText: 2026 The qmClient authors
// SPDX-License-Identifier: GPL-3.0-or-later
#include "app/ChosenMailbox.h"

#include "app/Keys.h"
#include "platform/basic/Conversion.h"

namespace app {

std::optional<std::int32_t> chosenMailbox(int tabCount, const std::optional<forms::Tab>& selected,
                                          const data::clsConfig& config) {
    if (tabCount < 2)
        return config.Mailboxes.at(1)->ID;
    if (!selected)
        return std::nullopt;
    return basic::CLng(withoutPrefix(selected->Key, kTabKeyPrefix));
}

} // namespace app
