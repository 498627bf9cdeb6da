// SPDX-FileCopyrightText: 2026 The qmClient authors
// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once
// The taskbar's notification area as the tray component is written against it. The two shell calls take a
// record's bytes and answer like the platform: false for a malformed record, an unknown window, an unknown
// icon handle, adding twice, changing or removing what is not there. A program that runs without a
// notification area is no failure: the icon is kept and appears as soon as there is one. Notifications come
// back as messages posted to the record's window (number uCallbackMessage, wParam uID, lParam the code),
// never from inside a call:
//   StatusNotifier  activation: 513, 514, 515; its exported menu opens: 516, 517
//   XEmbed          512 to 515 and 518 as they come; a right press is 516 and 517 at once
// User-interface thread.

#include "platform/shell/NotifyIconData.h"

#include <cstddef>
#include <cstdint>
#include <span>

class QMenu;

namespace shell {

class NotificationArea {
public:
    NotificationArea() = default;
    NotificationArea(const NotificationArea&) = delete;
    NotificationArea& operator=(const NotificationArea&) = delete;
    virtual ~NotificationArea() = default;

    virtual bool Shell_NotifyIconA(std::uint32_t message, std::span<const std::byte> record) = 0;
    virtual bool Shell_NotifyIconW(std::uint32_t message, std::span<const std::byte> record) = 0;

    // Names the menu of a window's icons before it is first opened: StatusNotifier hosts show a copy of it
    // themselves. The menu is not taken over; nullptr ends it and must be said before the menu dies.
    virtual void setMenu(WindowHandle window, QMenu* menu) = 0;
    // Brings the window to the front and opens its menu at the mouse, to be closed by a click elsewhere or
    // Escape. Returns at once. Does nothing where the host has already shown its copy.
    virtual void trackPopupMenu(WindowHandle window) = 0;
};

} // namespace shell
