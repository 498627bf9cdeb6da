// SPDX-FileCopyrightText: 2026 The qmClient authors
// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once
// The notification area of a real desktop. Owns the icons that were added, whatever panel there is; each is
// shown through the kind of area the desktop offers and handed over anew when that changes. The one place
// that chooses between the kinds. User-interface thread; tables and hosts must outlive it.

#include "platform/shell/IconTable.h"
#include "platform/shell/NotificationArea.h"
#include "platform/shell/NotifyIconRecord.h"
#include "platform/shell/TrayHosts.h"
#include "platform/shell/TrayIcon.h"
#include "platform/shell/WindowTable.h"

#include <QObject>

#include <map>
#include <memory>
#include <utility>

namespace shell {

class DesktopNotificationArea : public QObject, public NotificationArea {
    Q_OBJECT
public:
    DesktopNotificationArea(WindowTable& windows, const IconTable& icons, const TrayHosts& hosts);
    ~DesktopNotificationArea() override;

    bool Shell_NotifyIconA(std::uint32_t message, std::span<const std::byte> record) override;
    bool Shell_NotifyIconW(std::uint32_t message, std::span<const std::byte> record) override;
    void setMenu(WindowHandle window, QMenu* menu) override;
    void trackPopupMenu(WindowHandle window) override;

private:
    using Key = std::pair<WindowHandle, std::uint32_t>; // hWnd and uID name an icon

    struct Entry {
        TrayIconFace face;
        std::uint32_t callbackMessage = 0;
        std::unique_ptr<TrayIcon> shown; // empty while the desktop has no notification area
    };

    bool notify(std::uint32_t message, const std::optional<NotifyIconRecord>& record);
    bool add(const NotifyIconRecord& record);
    bool modify(const NotifyIconRecord& record);
    bool takeFields(Entry& entry, const NotifyIconRecord& record) const;
    void present(const Key& key, Entry& entry);
    void hostsChanged();

    WindowTable& m_windows;
    const IconTable& m_icons;
    const TrayHosts& m_hosts;
    std::map<Key, Entry> m_entries;
    std::map<WindowHandle, QPointer<QMenu>> m_menus;
};

} // namespace shell
