// SPDX-FileCopyrightText: 2026 The qmClient authors
// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once
// The window operations on a real desktop. On X11 the taskbar is read from the panels; with any other window
// system there is none, and a window's place is only a wish. Figures are the window system's pixels divided
// by the primary monitor's scale. User-interface thread; holds nothing.

#include "platform/shell/DesktopWindows.h"

#include <optional>

namespace shell {

class WorkstationWindows : public DesktopWindows {
public:
    WindowHandle FindWindowExA(std::string_view className) override;
    WindowHandle GetDesktopWindow() override;
    Rectangle GetWindowRect(WindowHandle window) override;
    void move(QWidget& window, int left, int top) override;
    void clearOwner(QWidget& window) override;
    void makeTopMost(QWidget& window) override;

private:
    std::optional<Rectangle> taskbar() const;
};

} // namespace shell
