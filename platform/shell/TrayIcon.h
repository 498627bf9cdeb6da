// SPDX-FileCopyrightText: 2026 The qmClient authors
// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once
// One icon on the panel through one kind of notification area. Created shown, gone with its destruction.
// What the user does to it goes to the listener as notification codes (513 and so on), at once; the owner
// queues them. User-interface thread.

#include <QIcon>
#include <QPointer>
#include <QString>

#include <cstdint>
#include <functional>

class QMenu;

namespace shell {

// What an icon shows; the menu may be missing.
struct TrayIconFace {
    QIcon icon;
    QString tip;
    QPointer<QMenu> menu;
};

struct Balloon {
    QString text;
    QString title;
    std::uint32_t timeoutMilliseconds = 0;
    std::uint32_t iconFlags = 0; // 1 information, 2 warning, 3 error
};

class TrayIcon {
public:
    using Listener = std::function<void(std::uint32_t code)>;

    TrayIcon() = default;
    TrayIcon(const TrayIcon&) = delete;
    TrayIcon& operator=(const TrayIcon&) = delete;
    virtual ~TrayIcon() = default;

    virtual void setIcon(const QIcon& icon) = 0;
    virtual void setTip(const QString& tip) = 0;
    virtual void setMenu(QMenu* menu) = 0;
    virtual void showBalloon(const Balloon& balloon) = 0;
    // Opens the menu at the mouse, where the host does not show it by itself.
    virtual void popUpMenu() = 0;
};

} // namespace shell
