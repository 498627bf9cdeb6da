// SPDX-FileCopyrightText: 2026 The qmClient authors
// SPDX-License-Identifier: GPL-3.0-or-later
#include "platform/shell/IconTable.h"

#include <algorithm>

namespace shell {

IconHandle IconTable::add(const QIcon& icon) {
    if (icon.isNull())
        return 0;
    const auto known = std::find_if(m_icons.begin(), m_icons.end(), [&](const auto& entry) {
        return entry.second.cacheKey() == icon.cacheKey();
    });
    if (known != m_icons.end())
        return known->first;
    m_icons.emplace(++m_last, icon);
    return m_last;
}

std::optional<QIcon> IconTable::find(IconHandle handle) const {
    if (handle == 0)
        return QIcon();
    const auto found = m_icons.find(handle);
    return found == m_icons.end() ? std::nullopt : std::optional(found->second);
}

} // namespace shell
