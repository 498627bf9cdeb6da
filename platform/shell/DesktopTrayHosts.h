// SPDX-FileCopyrightText: 2026 The qmClient authors
// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once
// The notification areas of a real desktop: StatusNotifier hosts on the session bus and XEmbed trays on the X
// display. A StatusNotifier host is preferred where both are there. An XEmbed tray is not reported before the
// bus has answered for the first time. User-interface thread.

#include "platform/shell/StatusNotifierWatch.h"
#include "platform/shell/TrayHosts.h"
#include "platform/shell/TraySelectionWatch.h"

namespace shell {

class DesktopTrayHosts : public TrayHosts {
    Q_OBJECT
public:
    explicit DesktopTrayHosts(const QDBusConnection& sessionBus);

    TrayHostKind kind() const override { return m_kind; }

private:
    TrayHostKind currentKind() const;
    void statusNotifierChanged();
    void selectionChanged();

    StatusNotifierWatch m_statusNotifier;
    TraySelectionWatch m_selection;
    TrayHostKind m_kind = TrayHostKind::None;
};

} // namespace shell
