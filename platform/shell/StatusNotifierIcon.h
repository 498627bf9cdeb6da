// SPDX-FileCopyrightText: 2026 The qmClient authors
// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once
// A tray icon as a StatusNotifier item with its exported menu, on a bus connection of its own, so that it
// can be handed to another watcher at any time. It is ours and not Qt's because Qt settles once per process
// whether there are such items. An activation is 513, 514, 515 (these panels know no double click); an
// opening of the exported menu is 516 and 517. A panel that cannot show exported menus asks for the menu at a
// place, where it pops up by itself. User-interface thread.

#include "platform/shell/DesktopNotifications.h"
#include "platform/shell/TrayIcon.h"

#include <QDBusConnection>
#include <QObject>

namespace shell {

class MenuExport;
class StatusNotifierItem;

class StatusNotifierIcon : public TrayIcon {
public:
    StatusNotifierIcon(const TrayIconFace& face, Listener listener);
    ~StatusNotifierIcon() override;

    void setIcon(const QIcon& icon) override;
    void setTip(const QString& tip) override;
    void setMenu(QMenu* menu) override;
    void showBalloon(const Balloon& balloon) override;
    void popUpMenu() override {}

private:
    void publish();
    void activated();
    void menuOpened();
    void popUpMenuAt(QPoint place);

    Listener m_listener;
    QPointer<QMenu> m_menu;
    QDBusConnection m_bus;
    QObject m_itemObject;
    QObject m_menuObject;
    StatusNotifierItem* m_item;
    MenuExport* m_menuExport;
    DesktopNotifications m_balloons;
};

} // namespace shell
