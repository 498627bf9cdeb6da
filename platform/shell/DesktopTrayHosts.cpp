// SPDX-FileCopyrightText: 2026 The qmClient authors
// SPDX-License-Identifier: GPL-3.0-or-later
#include "platform/shell/DesktopTrayHosts.h"

namespace shell {

DesktopTrayHosts::DesktopTrayHosts(const QDBusConnection& sessionBus) : m_statusNotifier(sessionBus) {
    connect(&m_statusNotifier, &StatusNotifierWatch::changed, this, &DesktopTrayHosts::statusNotifierChanged);
    connect(&m_selection, &TraySelectionWatch::changed, this, &DesktopTrayHosts::selectionChanged);
    m_kind = currentKind();
}

TrayHostKind DesktopTrayHosts::currentKind() const {
    if (m_statusNotifier.isHostRegistered())
        return TrayHostKind::StatusNotifier;
    return m_statusNotifier.isSettled() && m_selection.hasOwner() ? TrayHostKind::Embedding
                                                                  : TrayHostKind::None;
}

void DesktopTrayHosts::statusNotifierChanged() {
    const TrayHostKind kind = currentKind();
    if (kind == m_kind)
        return;
    m_kind = kind;
    Q_EMIT changed();
}

// A new tray window is word enough, even when the kind stays: the icon has to be embedded anew.
void DesktopTrayHosts::selectionChanged() {
    const TrayHostKind kind = currentKind();
    if (kind == m_kind && kind != TrayHostKind::Embedding)
        return;
    m_kind = kind;
    Q_EMIT changed();
}

} // namespace shell
