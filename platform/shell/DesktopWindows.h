// SPDX-FileCopyrightText: 2026 The qmClient authors
// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once
// The window operations that a window placing itself beside the taskbar needs, under their platform names.
// Rectangles are logical pixels counted from the primary monitor's top left corner; they are read afresh on
// every call. The taskbar stands for whatever the window system reserves along the primary monitor's bottom
// edge, at its full width; there is none where nothing is reserved or the window system does not tell.
// User-interface thread; failures are RuntimeErrors.

#include "platform/shell/NotifyIconData.h"
#include "platform/shell/Rectangle.h"

#include <string_view>

class QWidget;

namespace shell {

class DesktopWindows {
public:
    DesktopWindows() = default;
    DesktopWindows(const DesktopWindows&) = delete;
    DesktopWindows& operator=(const DesktopWindows&) = delete;
    virtual ~DesktopWindows() = default;

    // The top-level window of a class: "Shell_TrayWnd" is the taskbar. 0 when there is none.
    virtual WindowHandle FindWindowExA(std::string_view className) = 0;
    virtual WindowHandle GetDesktopWindow() = 0;
    // Error 5 for a handle that is no window of the desktop's.
    virtual Rectangle GetWindowRect(WindowHandle window) = 0;

    // Moves a window's top left corner to a place on the primary monitor.
    virtual void move(QWidget& window, int left, int top) = 0;
    // SetWindowLongA with GWL_HWNDPARENT 0: the window goes its own way when others are hidden or minimised.
    virtual void clearOwner(QWidget& window) = 0;
    // SetWindowPos with HWND_TOPMOST, neither moved nor resized nor activated.
    virtual void makeTopMost(QWidget& window) = 0;
};

} // namespace shell
