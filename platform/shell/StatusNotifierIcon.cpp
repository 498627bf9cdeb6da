// SPDX-FileCopyrightText: 2026 The qmClient authors
// SPDX-License-Identifier: GPL-3.0-or-later
#include "platform/shell/StatusNotifierIcon.h"

#include "platform/shell/MenuExport.h"
#include "platform/shell/NotifyIconData.h"
#include "platform/shell/StatusNotifierItem.h"

#include <QCoreApplication>
#include <QCursor>
#include <QDBusMessage>
#include <QDBusPendingCall>
#include <QGuiApplication>
#include <QScreen>

#include <utility>

namespace shell {
namespace {

const QString kItemPath = QStringLiteral("/StatusNotifierItem");

QString nextServiceName() {
    static int number = 0; // the protocol's names count the items of a process
    return QStringLiteral("org.kde.StatusNotifierItem-%1-%2")
        .arg(QCoreApplication::applicationPid())
        .arg(++number);
}

// Panels speak of the screen's own pixels.
QPoint logical(QPoint place) {
    return place / QGuiApplication::primaryScreen()->devicePixelRatio();
}

} // namespace

StatusNotifierIcon::StatusNotifierIcon(const TrayIconFace& face, Listener listener)
    : m_listener(std::move(listener)), m_menu(face.menu),
      m_bus(QDBusConnection::connectToBus(QDBusConnection::SessionBus, nextServiceName())),
      m_item(new StatusNotifierItem(&m_itemObject, face.icon, face.tip,
                                    {[this] { activated(); }, [this](QPoint place) { popUpMenuAt(place); }})),
      m_menuExport(new MenuExport(&m_menuObject, face.menu, [this] { menuOpened(); })),
      m_balloons(m_bus, m_listener) {
    publish();
}

StatusNotifierIcon::~StatusNotifierIcon() {
    QDBusConnection::disconnectFromBus(m_bus.name());
}

void StatusNotifierIcon::publish() {
    registerStatusNotifierTypes();
    m_bus.registerObject(kItemPath, &m_itemObject);
    m_bus.registerObject(QString::fromUtf16(kStatusNotifierMenuPath), &m_menuObject);
    m_bus.registerService(m_bus.name());
    QDBusMessage call = QDBusMessage::createMethodCall(
        QStringLiteral("org.kde.StatusNotifierWatcher"), QStringLiteral("/StatusNotifierWatcher"),
        QStringLiteral("org.kde.StatusNotifierWatcher"), QStringLiteral("RegisterStatusNotifierItem"));
    call << m_bus.name();
    m_bus.asyncCall(call);
}

void StatusNotifierIcon::setIcon(const QIcon& icon) {
    m_item->setIcon(icon);
}

void StatusNotifierIcon::setTip(const QString& tip) {
    m_item->setTip(tip);
}

void StatusNotifierIcon::setMenu(QMenu* menu) {
    m_menu = menu;
    m_menuExport->setMenu(menu);
}

void StatusNotifierIcon::showBalloon(const Balloon& balloon) {
    m_balloons.show(balloon);
}

void StatusNotifierIcon::activated() {
    m_listener(kLeftButtonDown);
    m_listener(kLeftButtonUp);
    m_listener(kLeftDoubleClick);
}

void StatusNotifierIcon::menuOpened() {
    m_listener(kRightButtonDown);
    m_listener(kRightButtonUp);
}

void StatusNotifierIcon::popUpMenuAt(QPoint place) {
    menuOpened();
    if (m_menu)
        m_menu->popup(logical(place));
}

} // namespace shell
