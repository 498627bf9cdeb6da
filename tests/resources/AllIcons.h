// SPDX-FileCopyrightText: 2026 The qmClient authors
// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once
// Every picture of the program by its name, but those of the details dialog, which are drawn on a key colour.

#include "resources/Icons.h"

#include <array>
#include <functional>

namespace resources::testing {

struct Named {
    const char* name;
    std::function<QIcon()> make;
};

inline const std::array kAllIcons{
    Named{"program", programIcon},
    Named{"tray", trayIcon},
    Named{"call with message", [] { return callIcon(kCallWithMessage); }},
    Named{"call without message", [] { return callIcon(kCallWithoutMessage); }},
    Named{"mailbox", [] { return mailboxIcon(kMailboxImage); }},
    Named{"new calls", newCallsPicture},
    Named{"play", [] { return playerIcon(PlayerIcon::Play); }},
    Named{"pause", [] { return playerIcon(PlayerIcon::Pause); }},
    Named{"stop", [] { return playerIcon(PlayerIcon::Stop); }},
    Named{"rewind", [] { return playerIcon(PlayerIcon::Rewind); }},
    Named{"forward", [] { return playerIcon(PlayerIcon::Forward); }},
    Named{"previous", [] { return stepIcon(false); }},
    Named{"next", [] { return stepIcon(true); }},
    Named{"help back", [] { return helpIcon(HelpIcon::Back); }},
    Named{"help forward", [] { return helpIcon(HelpIcon::Forward); }},
    Named{"help start", [] { return helpIcon(HelpIcon::Start); }},
    Named{"help print", [] { return helpIcon(HelpIcon::Print); }},
};

} // namespace resources::testing
