// SPDX-FileCopyrightText: 2026 The qmClient authors
// SPDX-License-Identifier: GPL-3.0-or-later
#include "resources/Icons.h"

#include "resources/SvgIconEngine.h"

// In a static library nobody else asks the linker for the compiled-in files. Outside of every namespace, as
// the macro declares a function.
static void provideFiles() {
    Q_INIT_RESOURCE(icons);
}

namespace {

QIcon icon(const QString& name) {
    provideFiles();
    return QIcon(new resources::SvgIconEngine(QStringLiteral(":/icons/%1.svg").arg(name)));
}

} // namespace

namespace resources {

// The drawing for small sizes is the panel's.
QIcon programIcon() {
    provideFiles();
    return QIcon(
        new SvgIconEngine(QStringLiteral(":/icons/program.svg"), QStringLiteral(":/icons/tray.svg")));
}

QIcon trayIcon() {
    return icon(QStringLiteral("tray"));
}

QIcon callIcon(std::int32_t smallIcon) {
    if (smallIcon == kCallWithMessage)
        return icon(QStringLiteral("call-with-message"));
    return smallIcon == kCallWithoutMessage ? icon(QStringLiteral("call-without-message")) : QIcon();
}

QIcon mailboxIcon(std::int32_t image) {
    return image == kMailboxImage ? icon(QStringLiteral("mailbox")) : QIcon();
}

QIcon playerIcon(PlayerIcon button) {
    switch (button) {
    case PlayerIcon::Play:
        return icon(QStringLiteral("play"));
    case PlayerIcon::Pause:
        return icon(QStringLiteral("pause"));
    case PlayerIcon::Stop:
        return icon(QStringLiteral("stop"));
    case PlayerIcon::Rewind:
        return icon(QStringLiteral("rewind"));
    case PlayerIcon::Forward:
        return icon(QStringLiteral("forward"));
    }
    return {};
}

QIcon detailsIcon(std::int32_t picture) {
    if (picture == kDetailsWithMessage)
        return icon(QStringLiteral("details-with-message"));
    return picture == kDetailsWithoutMessage ? icon(QStringLiteral("details-without-message")) : QIcon();
}

QIcon stepIcon(bool down) {
    return icon(down ? QStringLiteral("next") : QStringLiteral("previous"));
}

QIcon helpIcon(HelpIcon button) {
    switch (button) {
    case HelpIcon::Back:
        return icon(QStringLiteral("help-back"));
    case HelpIcon::Forward:
        return icon(QStringLiteral("help-forward"));
    case HelpIcon::Start:
        return icon(QStringLiteral("help-start"));
    case HelpIcon::Print:
        return icon(QStringLiteral("help-print"));
    }
    return {};
}

QIcon newCallsPicture() {
    return icon(QStringLiteral("new-calls"));
}

} // namespace resources
