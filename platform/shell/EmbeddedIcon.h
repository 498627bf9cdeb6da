// SPDX-FileCopyrightText: 2026 The qmClient authors
// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once
// A tray icon as a small window embedded by an XEmbed tray. It is Qt's own tray icon, which decides once per
// process between the kinds of notification area when it is first touched and never thinks again: so this
// class is created only while a tray selection has an owner and no StatusNotifier host is there, and Qt's
// choice is always the right one. The mouse events of its window become codes as they come: 512 to 515 and
// 518; a right press is 516 and 517 at once, because the menu that opens on 516 takes the release. Should Qt
// hide its window from us, its reasons do: Trigger 513 and 514, DoubleClick 515 and 514, Context 516 and 517.
// No menu is attached: the owner is told first and asks for it. User-interface thread.

#include "platform/shell/TrayIcon.h"

#include <QEvent>
#include <QObject>
#include <QSystemTrayIcon>
#include <QWidget>

namespace shell {

// Whether it is the window of such an icon.
bool isEmbeddedIcon(const QWidget& window);

class EmbeddedIcon : public QObject, public TrayIcon {
    Q_OBJECT
public:
    EmbeddedIcon(const TrayIconFace& face, Listener listener);

    void setIcon(const QIcon& icon) override;
    void setTip(const QString& tip) override;
    void setMenu(QMenu* menu) override;
    void showBalloon(const Balloon& balloon) override;
    void popUpMenu() override;

    bool eventFilter(QObject* watched, QEvent* event) override;

private:
    void activated(QSystemTrayIcon::ActivationReason reason);

    void watchWindow(QWidget& window);
    void joinModalWindow();
    void buttonUsed(QEvent::Type type, Qt::MouseButton button);

    Listener m_listener;
    QPointer<QMenu> m_menu;
    QPointer<QWidget> m_window; // Qt's, once it is known
    QSystemTrayIcon m_icon;
};

} // namespace shell
