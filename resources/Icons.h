// SPDX-FileCopyrightText: 2026 The qmClient authors
// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once
// The program's pictures, drawn from the SVG files in resources/icons, which are compiled in. They are sharp
// at every size and scale; the marks and buttons take their colours from the palette each time they are
// drawn, so a change between light and dark themes needs no new icons. Marks differ by shape, not by colour
// alone. User-interface thread, once the application object exists.

#include <QIcon>

#include <cstdint>

namespace resources {

// Numbers of the call list's small icons, of the tab strip's image and of the details dialog's pictures.
inline constexpr std::int32_t kCallWithMessage = 1;
inline constexpr std::int32_t kCallWithoutMessage = 8;
inline constexpr std::int32_t kMailboxImage = 1;
inline constexpr std::int32_t kDetailsWithMessage = 8;
inline constexpr std::int32_t kDetailsWithoutMessage = 30;

enum class HelpIcon { Back, Forward, Start, Print };
enum class PlayerIcon { Play, Pause, Stop, Rewind, Forward };

QIcon programIcon();
// The program's mark in fewer strokes, for a panel.
QIcon trayIcon();
// By the numbers above; a null icon for any other.
QIcon callIcon(std::int32_t smallIcon);
QIcon mailboxIcon(std::int32_t image);
QIcon playerIcon(PlayerIcon button);
QIcon helpIcon(HelpIcon button);
// Pure green in it is a key colour, to be replaced by who draws it.
QIcon detailsIcon(std::int32_t picture);
// The arrow of a button that goes to the next or the previous call.
QIcon stepIcon(bool down);
// The picture of the popup that announces calls.
QIcon newCallsPicture();

} // namespace resources
