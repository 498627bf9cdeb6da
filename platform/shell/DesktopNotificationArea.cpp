// SPDX-FileCopyrightText: 2026 The qmClient authors
// SPDX-License-Identifier: GPL-3.0-or-later
#include "platform/shell/DesktopNotificationArea.h"

#include "platform/shell/EmbeddedIcon.h"
#include "platform/shell/StatusNotifierIcon.h"

#include <QMenu>

namespace shell {

DesktopNotificationArea::DesktopNotificationArea(WindowTable& windows, const IconTable& icons,
                                                 const TrayHosts& hosts)
    : m_windows(windows), m_icons(icons), m_hosts(hosts) {
    connect(&hosts, &TrayHosts::changed, this, &DesktopNotificationArea::hostsChanged);
}

DesktopNotificationArea::~DesktopNotificationArea() = default;

bool DesktopNotificationArea::Shell_NotifyIconA(std::uint32_t message, std::span<const std::byte> record) {
    return notify(message, readNotifyIconA(record));
}

bool DesktopNotificationArea::Shell_NotifyIconW(std::uint32_t message, std::span<const std::byte> record) {
    return notify(message, readNotifyIconW(record));
}

void DesktopNotificationArea::setMenu(WindowHandle window, QMenu* menu) {
    m_menus[window] = menu;
    for (auto& [key, entry] : m_entries) {
        if (key.first != window)
            continue;
        entry.face.menu = menu;
        if (entry.shown)
            entry.shown->setMenu(menu);
    }
}

void DesktopNotificationArea::trackPopupMenu(WindowHandle window) {
    const auto found = m_entries.lower_bound({window, 0});
    if (found != m_entries.end() && found->first.first == window && found->second.shown)
        found->second.shown->popUpMenu();
}

bool DesktopNotificationArea::notify(std::uint32_t message, const std::optional<NotifyIconRecord>& record) {
    if (!record)
        return false;
    const Key key{record->window, record->id};
    switch (message) {
    case kNimAdd:
        return add(*record);
    case kNimModify:
        return modify(*record);
    case kNimDelete:
        return m_entries.erase(key) > 0;
    case kNimSetVersion:
        return m_entries.contains(key) && (record->version == 0 || record->version == kNotifyIconVersion);
    default:
        return false;
    }
}

bool DesktopNotificationArea::add(const NotifyIconRecord& record) {
    const Key key{record.window, record.id};
    if (!m_windows.contains(record.window) || m_entries.contains(key))
        return false;
    Entry entry;
    if (!takeFields(entry, record))
        return false;
    if (const auto menu = m_menus.find(record.window); menu != m_menus.end())
        entry.face.menu = menu->second;
    present(key, m_entries.emplace(key, std::move(entry)).first->second);
    return true;
}

bool DesktopNotificationArea::modify(const NotifyIconRecord& record) {
    const auto found = m_entries.find({record.window, record.id});
    if (found == m_entries.end() || !takeFields(found->second, record))
        return false;
    Entry& entry = found->second;
    if (!entry.shown)
        return true;
    if (record.icon)
        entry.shown->setIcon(entry.face.icon);
    if (record.tip)
        entry.shown->setTip(entry.face.tip);
    if (record.balloon)
        entry.shown->showBalloon({QString::fromStdU16String(record.balloon->text),
                                  QString::fromStdU16String(record.balloon->title),
                                  record.balloon->timeoutMilliseconds, record.balloon->iconFlags});
    return true;
}

// All or nothing: an unknown icon handle leaves the entry as it was.
bool DesktopNotificationArea::takeFields(Entry& entry, const NotifyIconRecord& record) const {
    if (record.icon) {
        const auto icon = m_icons.find(*record.icon);
        if (!icon)
            return false;
        entry.face.icon = *icon;
    }
    if (record.callbackMessage)
        entry.callbackMessage = *record.callbackMessage;
    if (record.tip)
        entry.face.tip = QString::fromStdU16String(*record.tip);
    return true;
}

void DesktopNotificationArea::present(const Key& key, Entry& entry) {
    auto listener = [this, key](std::uint32_t code) {
        if (const auto found = m_entries.find(key);
            found != m_entries.end() && found->second.callbackMessage != 0)
            m_windows.post(key.first, {found->second.callbackMessage, key.second, code});
    };
    entry.shown.reset();
    if (m_hosts.kind() == TrayHostKind::StatusNotifier)
        entry.shown = std::make_unique<StatusNotifierIcon>(entry.face, std::move(listener));
    else if (m_hosts.kind() == TrayHostKind::Embedding)
        entry.shown = std::make_unique<EmbeddedIcon>(entry.face, std::move(listener));
}

void DesktopNotificationArea::hostsChanged() {
    for (auto& [key, entry] : m_entries)
        present(key, entry);
}

} // namespace shell
