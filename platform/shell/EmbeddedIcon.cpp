// SPDX-FileCopyrightText: 2026 The qmClient authors
// SPDX-License-Identifier: GPL-3.0-or-later
#include "platform/shell/EmbeddedIcon.h"

#include "platform/shell/NotifyIconData.h"

#include <QApplication>
#include <QCursor>
#include <QMenu>
#include <QMouseEvent>
#include <QWindow>

#include <algorithm>
#include <limits>
#include <utility>

namespace shell {
namespace {

QSystemTrayIcon::MessageIcon messageIcon(std::uint32_t iconFlags) {
    switch (iconFlags & 0xF) {
    case 1:
        return QSystemTrayIcon::Information;
    case 2:
        return QSystemTrayIcon::Warning;
    case 3:
        return QSystemTrayIcon::Critical;
    default:
        return QSystemTrayIcon::NoIcon;
    }
}

// The windows of Qt's embedded icons carry no other mark than their class.
QWidgetList embeddedWindows() {
    QWidgetList found;
    for (QWidget* widget : QApplication::topLevelWidgets())
        if (isEmbeddedIcon(*widget))
            found.append(widget);
    return found;
}

} // namespace

bool isEmbeddedIcon(const QWidget& window) {
    return window.inherits("QSystemTrayIconSys");
}

EmbeddedIcon::EmbeddedIcon(const TrayIconFace& face, Listener listener)
    : m_listener(std::move(listener)), m_menu(face.menu) {
    QObject::connect(&m_icon, &QSystemTrayIcon::activated, &m_icon,
                     [this](QSystemTrayIcon::ActivationReason reason) { activated(reason); });
    QObject::connect(&m_icon, &QSystemTrayIcon::messageClicked, &m_icon,
                     [this] { m_listener(kBalloonUserClick); });
    m_icon.setToolTip(face.tip);
    setIcon(face.icon);
}

void EmbeddedIcon::setIcon(const QIcon& icon) {
    m_icon.setIcon(icon);
    if (m_icon.isVisible() != icon.isNull())
        return;
    const QWidgetList others = embeddedWindows();
    m_icon.setVisible(!icon.isNull());
    for (QWidget* window : embeddedWindows())
        if (!others.contains(window))
            watchWindow(*window);
}

void EmbeddedIcon::watchWindow(QWidget& window) {
    m_window = &window;
    window.setMouseTracking(true);
    window.installEventFilter(this);
}

bool EmbeddedIcon::eventFilter(QObject* watched, QEvent* event) {
    const auto type = event->type();
    if (type == QEvent::MouseMove)
        m_listener(kMouseMove);
    else if (type == QEvent::WindowBlocked)
        joinModalWindow();
    else if (type == QEvent::MouseButtonPress || type == QEvent::MouseButtonRelease ||
             type == QEvent::MouseButtonDblClick)
        buttonUsed(type, static_cast<const QMouseEvent*>(event)->button());
    return QObject::eventFilter(watched, event);
}

// A modal dialog takes the mouse from all windows but its own ones. The icon's menu ends the program also
// while an error is told, so the icon counts as one of these.
void EmbeddedIcon::joinModalWindow() {
    if (m_window && m_window->windowHandle())
        m_window->windowHandle()->setTransientParent(QGuiApplication::modalWindow());
}

void EmbeddedIcon::buttonUsed(QEvent::Type type, Qt::MouseButton button) {
    const bool isRelease = type == QEvent::MouseButtonRelease;
    const bool isDoubleClick = type == QEvent::MouseButtonDblClick;
    if (button == Qt::LeftButton) {
        m_listener(isRelease ? kLeftButtonUp : isDoubleClick ? kLeftDoubleClick : kLeftButtonDown);
    } else if (button == Qt::RightButton && !isRelease) {
        m_listener(isDoubleClick ? kRightDoubleClick : kRightButtonDown);
        m_listener(kRightButtonUp);
    }
}

void EmbeddedIcon::setTip(const QString& tip) {
    m_icon.setToolTip(tip);
}

void EmbeddedIcon::setMenu(QMenu* menu) {
    m_menu = menu;
}

void EmbeddedIcon::showBalloon(const Balloon& balloon) {
    const std::uint32_t longest = std::numeric_limits<int>::max();
    m_icon.showMessage(balloon.title, balloon.text, messageIcon(balloon.iconFlags),
                       static_cast<int>(std::min(balloon.timeoutMilliseconds, longest)));
    m_listener(kBalloonShow);
}

void EmbeddedIcon::popUpMenu() {
    if (m_menu)
        m_menu->popup(QCursor::pos());
}

void EmbeddedIcon::activated(QSystemTrayIcon::ActivationReason reason) {
    if (m_window)
        return; // its events have said it already
    switch (reason) {
    case QSystemTrayIcon::Trigger:
        m_listener(kLeftButtonDown);
        m_listener(kLeftButtonUp);
        break;
    case QSystemTrayIcon::DoubleClick:
        m_listener(kLeftDoubleClick);
        m_listener(kLeftButtonUp);
        break;
    case QSystemTrayIcon::Context:
        m_listener(kRightButtonDown);
        m_listener(kRightButtonUp);
        break;
    default:
        break;
    }
}

} // namespace shell
