// SPDX-FileCopyrightText: 2026 The qmClient authors
// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once
// A tray icon as a small window embedded by an XEmbed tray. It is Qt's own tray icon, which decides once per
// process between the kinds of notification area when it is first touched and never thinks again: so this
// class is created only while a tray selection has an owner and no StatusNotifier host is there, and Qt's
// choice is always the right one. Its reasons become codes: Trigger 513 and 514, DoubleClick 515 and 514 (it
// follows a Trigger for the first click), Context 516 and 517. No menu is attached: the owner is told first
// and asks for it.

#include "platform/shell/TrayIcon.h"

#include <QSystemTrayIcon>

namespace shell {

class EmbeddedIcon : public TrayIcon {
public:
    EmbeddedIcon(const TrayIconFace& face, Listener listener);

    void setIcon(const QIcon& icon) override;
    void setTip(const QString& tip) override;
    void setMenu(QMenu* menu) override;
    void showBalloon(const Balloon& balloon) override;
    void popUpMenu() override;

private:
    void activated(QSystemTrayIcon::ActivationReason reason);

    Listener m_listener;
    QPointer<QMenu> m_menu;
    QSystemTrayIcon m_icon;
};

} // namespace shell
