// SPDX-FileCopyrightText: 2026 The qmClient authors
// SPDX-License-Identifier: GPL-3.0-or-later
#include "platform/shell/WorkstationWindows.h"

#include "platform/basic/RuntimeError.h"
#include "platform/shell/X11Panels.h"
#include "platform/shell/XcbConnection.h"

#include <QGuiApplication>
#include <QScreen>
#include <QWidget>
#include <QWindow>

#include <cmath>

namespace shell {
namespace {

constexpr WindowHandle kDesktop = 1;
constexpr WindowHandle kTaskbar = 2;

// Qt's own connection, so that requests keep their order with Qt's. Null off X11.
xcb_connection_t* qtConnection() {
    const auto* x11 = qGuiApp->nativeInterface<QNativeInterface::QX11Application>();
    return x11 ? x11->connection() : nullptr;
}

const QScreen& primaryMonitor() {
    const QScreen* screen = QGuiApplication::primaryScreen();
    if (!screen)
        throw basic::RuntimeError(basic::kInvalidProcedureCall, "No monitor is connected");
    return *screen;
}

// The monitor in the window system's pixels: Qt scales its size, not its corner.
Rectangle nativePlace(const QScreen& screen) {
    const QPoint corner = screen.geometry().topLeft();
    const QSizeF size = QSizeF(screen.geometry().size()) * screen.devicePixelRatio();
    return {corner.x(), corner.y(), corner.x() + qRound(size.width()), corner.y() + qRound(size.height())};
}

} // namespace

WindowHandle WorkstationWindows::FindWindowExA(std::string_view className) {
    return className == "Shell_TrayWnd" && taskbar() ? kTaskbar : 0;
}

WindowHandle WorkstationWindows::GetDesktopWindow() {
    return kDesktop;
}

Rectangle WorkstationWindows::GetWindowRect(WindowHandle window) {
    if (window == kDesktop)
        return {0, 0, primaryMonitor().size().width(), primaryMonitor().size().height()};
    const auto bar = window == kTaskbar ? taskbar() : std::nullopt;
    if (!bar)
        throw basic::RuntimeError(basic::kInvalidProcedureCall, "The window does not exist");
    return *bar;
}

void WorkstationWindows::move(QWidget& window, int left, int top) {
    window.move(primaryMonitor().geometry().topLeft() + QPoint(left, top));
}

// A tool window without a parent is still bound to its program's window group, and would be minimised with
// it.
void WorkstationWindows::clearOwner(QWidget& window) {
    QWindow* handle = window.windowHandle();
    if (!handle)
        return;
    handle->setTransientParent(nullptr);
    if (xcb_connection_t* connection = qtConnection()) {
        xcb_delete_property(connection, static_cast<xcb_window_t>(handle->winId()),
                            XCB_ATOM_WM_TRANSIENT_FOR);
        xcb_flush(connection);
    }
}

void WorkstationWindows::makeTopMost(QWidget& window) {
    window.raise();
}

std::optional<Rectangle> WorkstationWindows::taskbar() const {
    xcb_connection_t* connection = qtConnection();
    const xcb_screen_t* screen = connection ? screenOf(connection, 0) : nullptr;
    if (!screen)
        return std::nullopt;
    const QScreen& monitor = primaryMonitor();
    const X11Panels found = readX11Panels(connection, screen->root);
    const int rows = reservedBottomRows(nativePlace(monitor), found.rootHeight, found.panels);
    if (rows == 0)
        return std::nullopt;
    const QSize size = monitor.size();
    const int height = static_cast<int>(std::ceil(rows / monitor.devicePixelRatio()));
    return Rectangle{0, size.height() - height, size.width(), size.height()};
}

} // namespace shell
