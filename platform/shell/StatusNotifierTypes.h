// SPDX-FileCopyrightText: 2026 The qmClient authors
// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once
// The structures that StatusNotifier items and exported menus send over D-Bus, with their marshalling:
// pictures (iiay), tool tips (sa(iiay)ss), menu properties (ia{sv}) and menu layouts (ia{sv}av).

#include <QByteArray>
#include <QDBusArgument>
#include <QList>
#include <QMetaType>
#include <QString>
#include <QStringList>
#include <QVariantMap>

class QIcon;

namespace shell {

// 32-bit ARGB pixels in network byte order.
struct SniPicture {
    int width = 0;
    int height = 0;
    QByteArray pixels;
};
using SniPictures = QList<SniPicture>;

struct SniToolTip {
    QString iconName;
    SniPictures pictures;
    QString title;
    QString text;
};

struct MenuProperties {
    int id = 0;
    QVariantMap properties;
};
using MenuPropertiesList = QList<MenuProperties>;

// Items whose properties went back to their defaults, with the names.
struct MenuRemovedProperties {
    int id = 0;
    QStringList names;
};
using MenuRemovedPropertiesList = QList<MenuRemovedProperties>;

struct MenuLayout {
    int id = 0;
    QVariantMap properties;
    QList<MenuLayout> children;
};

struct MenuEvent {
    int id = 0;
    QString kind;
    QDBusVariant data;
    uint timestamp = 0;
};
using MenuEventList = QList<MenuEvent>;

QDBusArgument& operator<<(QDBusArgument& argument, const SniPicture& picture);
const QDBusArgument& operator>>(const QDBusArgument& argument, SniPicture& picture);
QDBusArgument& operator<<(QDBusArgument& argument, const SniToolTip& tip);
const QDBusArgument& operator>>(const QDBusArgument& argument, SniToolTip& tip);
QDBusArgument& operator<<(QDBusArgument& argument, const MenuProperties& item);
const QDBusArgument& operator>>(const QDBusArgument& argument, MenuProperties& item);
QDBusArgument& operator<<(QDBusArgument& argument, const MenuRemovedProperties& item);
const QDBusArgument& operator>>(const QDBusArgument& argument, MenuRemovedProperties& item);
QDBusArgument& operator<<(QDBusArgument& argument, const MenuLayout& item);
const QDBusArgument& operator>>(const QDBusArgument& argument, MenuLayout& item);
QDBusArgument& operator<<(QDBusArgument& argument, const MenuEvent& event);
const QDBusArgument& operator>>(const QDBusArgument& argument, MenuEvent& event);

// To be called before one of them is sent; more than once does no harm.
void registerStatusNotifierTypes();

// An icon in the sizes that panels use.
SniPictures picturesOf(const QIcon& icon);

} // namespace shell

Q_DECLARE_METATYPE(shell::SniPicture)
Q_DECLARE_METATYPE(shell::SniToolTip)
Q_DECLARE_METATYPE(shell::MenuProperties)
Q_DECLARE_METATYPE(shell::MenuRemovedProperties)
Q_DECLARE_METATYPE(shell::MenuLayout)
Q_DECLARE_METATYPE(shell::MenuEvent)
