// SPDX-FileCopyrightText: 2026 The qmClient authors
// SPDX-License-Identifier: GPL-3.0-or-later
#include "platform/shell/StatusNotifierTypes.h"

#include <QDBusMetaType>
#include <QIcon>
#include <QImage>
#include <QPixmap>
#include <QtEndian>

namespace shell {
namespace {

SniPicture pictureOf(const QIcon& icon, int size) {
    const QImage image = icon.pixmap(QSize(size, size), 1.0).toImage().convertToFormat(QImage::Format_ARGB32);
    SniPicture picture{image.width(), image.height(),
                       QByteArray(qsizetype{4} * image.width() * image.height(), Qt::Uninitialized)};
    char* into = picture.pixels.data();
    for (int y = 0; y < image.height(); ++y, into += qsizetype{4} * image.width())
        qToBigEndian<quint32>(image.constScanLine(y), image.width(), into);
    return picture;
}

} // namespace

QDBusArgument& operator<<(QDBusArgument& argument, const SniPicture& picture) {
    argument.beginStructure();
    argument << picture.width << picture.height << picture.pixels;
    argument.endStructure();
    return argument;
}

const QDBusArgument& operator>>(const QDBusArgument& argument, SniPicture& picture) {
    argument.beginStructure();
    argument >> picture.width >> picture.height >> picture.pixels;
    argument.endStructure();
    return argument;
}

QDBusArgument& operator<<(QDBusArgument& argument, const SniToolTip& tip) {
    argument.beginStructure();
    argument << tip.iconName << tip.pictures << tip.title << tip.text;
    argument.endStructure();
    return argument;
}

const QDBusArgument& operator>>(const QDBusArgument& argument, SniToolTip& tip) {
    argument.beginStructure();
    argument >> tip.iconName >> tip.pictures >> tip.title >> tip.text;
    argument.endStructure();
    return argument;
}

QDBusArgument& operator<<(QDBusArgument& argument, const MenuProperties& item) {
    argument.beginStructure();
    argument << item.id << item.properties;
    argument.endStructure();
    return argument;
}

const QDBusArgument& operator>>(const QDBusArgument& argument, MenuProperties& item) {
    argument.beginStructure();
    argument >> item.id >> item.properties;
    argument.endStructure();
    return argument;
}

QDBusArgument& operator<<(QDBusArgument& argument, const MenuRemovedProperties& item) {
    argument.beginStructure();
    argument << item.id << item.names;
    argument.endStructure();
    return argument;
}

const QDBusArgument& operator>>(const QDBusArgument& argument, MenuRemovedProperties& item) {
    argument.beginStructure();
    argument >> item.id >> item.names;
    argument.endStructure();
    return argument;
}

QDBusArgument& operator<<(QDBusArgument& argument, const MenuLayout& item) {
    argument.beginStructure();
    argument << item.id << item.properties;
    argument.beginArray(QMetaType::fromType<QDBusVariant>());
    for (const MenuLayout& child : item.children)
        argument << QDBusVariant(QVariant::fromValue(child));
    argument.endArray();
    argument.endStructure();
    return argument;
}

const QDBusArgument& operator>>(const QDBusArgument& argument, MenuLayout& item) {
    argument.beginStructure();
    argument >> item.id >> item.properties;
    argument.beginArray();
    while (!argument.atEnd()) {
        QDBusVariant child;
        argument >> child;
        item.children.append(qdbus_cast<MenuLayout>(child.variant()));
    }
    argument.endArray();
    argument.endStructure();
    return argument;
}

QDBusArgument& operator<<(QDBusArgument& argument, const MenuEvent& event) {
    argument.beginStructure();
    argument << event.id << event.kind << event.data << event.timestamp;
    argument.endStructure();
    return argument;
}

const QDBusArgument& operator>>(const QDBusArgument& argument, MenuEvent& event) {
    argument.beginStructure();
    argument >> event.id >> event.kind >> event.data >> event.timestamp;
    argument.endStructure();
    return argument;
}

void registerStatusNotifierTypes() {
    qDBusRegisterMetaType<SniPicture>();
    qDBusRegisterMetaType<SniPictures>();
    qDBusRegisterMetaType<SniToolTip>();
    qDBusRegisterMetaType<MenuProperties>();
    qDBusRegisterMetaType<MenuPropertiesList>();
    qDBusRegisterMetaType<MenuRemovedProperties>();
    qDBusRegisterMetaType<MenuRemovedPropertiesList>();
    qDBusRegisterMetaType<MenuLayout>();
    qDBusRegisterMetaType<MenuEvent>();
    qDBusRegisterMetaType<MenuEventList>();
    // Slots are looked up by the spelling of their parameters.
    qRegisterMetaType<SniPictures>("shell::SniPictures");
    qRegisterMetaType<MenuPropertiesList>("shell::MenuPropertiesList");
    qRegisterMetaType<MenuRemovedPropertiesList>("shell::MenuRemovedPropertiesList");
    qRegisterMetaType<MenuEventList>("shell::MenuEventList");
}

SniPictures picturesOf(const QIcon& icon) {
    SniPictures pictures;
    if (icon.isNull())
        return pictures;
    for (const int size : {16, 22, 24, 32, 48, 64})
        pictures.append(pictureOf(icon, size));
    return pictures;
}

} // namespace shell
