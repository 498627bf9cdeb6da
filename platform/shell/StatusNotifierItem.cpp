// SPDX-FileCopyrightText: 2026 The qmClient authors
// SPDX-License-Identifier: GPL-3.0-or-later
#include "platform/shell/StatusNotifierItem.h"

#include <QCoreApplication>
#include <QGuiApplication>

#include <utility>

namespace shell {

StatusNotifierItem::StatusNotifierItem(QObject* parent, const QIcon& icon, QString tip, Clicks clicks)
    : QDBusAbstractAdaptor(parent), m_clicks(std::move(clicks)), m_pictures(picturesOf(icon)),
      m_tip(std::move(tip)) {}

void StatusNotifierItem::setIcon(const QIcon& icon) {
    m_pictures = picturesOf(icon);
    Q_EMIT NewIcon();
}

void StatusNotifierItem::setTip(const QString& tip) {
    if (tip == m_tip)
        return;
    m_tip = tip;
    Q_EMIT NewToolTip();
}

QString StatusNotifierItem::id() const {
    return QCoreApplication::applicationName();
}

QString StatusNotifierItem::title() const {
    return QGuiApplication::applicationDisplayName();
}

QDBusObjectPath StatusNotifierItem::menu() const {
    return QDBusObjectPath(QString::fromUtf16(kStatusNotifierMenuPath));
}

SniToolTip StatusNotifierItem::toolTip() const {
    return {QString(), SniPictures(), m_tip, QString()};
}

void StatusNotifierItem::Activate(int, int) {
    m_clicks.activate();
}

void StatusNotifierItem::SecondaryActivate(int, int) {}

void StatusNotifierItem::ContextMenu(int x, int y) {
    m_clicks.contextMenu(QPoint(x, y));
}

void StatusNotifierItem::Scroll(int, const QString&) {}

} // namespace shell
