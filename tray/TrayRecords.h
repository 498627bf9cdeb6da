// SPDX-FileCopyrightText: 2026 The qmClient authors
// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once
// The notification record of the tray component, kept in both layouts and passed through the interface that
// the platform's version asks for: wide on the NT family, narrow elsewhere; 128-character tips, balloons and
// NIM_SETVERSION with a version-5 shell. The size is chosen per call. Results of the shell are not looked at.
// User-interface thread; the notification area must outlive it.

#include "platform/shell/NotificationArea.h"

#include <QString>

#include <cstdint>

namespace tray {

// What the 32-bit answer of GetVersion says: major in the low byte, minor in the second, top bit clear for
// NT.
struct PlatformVersion {
    bool isWide = false;
    bool isVersion5Shell = false;
};
PlatformVersion decodeGetVersion(std::uint32_t answer) noexcept;

class TrayRecords {
public:
    TrayRecords(shell::NotificationArea& area, PlatformVersion version) : m_area(area), m_version(version) {}

    void fill(shell::WindowHandle window, shell::IconHandle icon, const QString& tip);
    void call(std::uint32_t message);
    // Sets uFlags to exactly these and calls.
    void call(std::uint32_t message, std::uint32_t flags);

    bool isWide() const noexcept { return m_version.isWide; }
    bool isVersion5Shell() const noexcept { return m_version.isVersion5Shell; }

    // Of the narrow record, whichever is in use.
    QString narrowTip() const;
    void setTip(const QString& tip);
    shell::IconHandle icon() const noexcept;
    void setIcon(shell::IconHandle icon) noexcept;
    void setBalloon(const QString& message, const QString& title, std::uint32_t timeout,
                    std::uint32_t iconFlags);

private:
    // Runs `use` on the record in use.
    template <typename Use>
    auto withRecord(Use use) {
        return m_version.isWide ? use(m_wide) : use(m_narrow);
    }

    shell::NotificationArea& m_area;
    PlatformVersion m_version;
    shell::NOTIFYICONDATAA m_narrow;
    shell::NOTIFYICONDATAW m_wide;
};

} // namespace tray
