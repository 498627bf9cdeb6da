// SPDX-FileCopyrightText: 2026 The qmClient authors
// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once
// The icons that handles stand for. One icon has one handle, however often it is added, so that comparing
// handles compares icons; a null icon has the handle 0. Icons stay for the table's life: a program shows a
// handful. User-interface thread.

#include "platform/shell/NotifyIconData.h"

#include <QIcon>

#include <map>
#include <optional>

namespace shell {

class IconTable {
public:
    IconHandle add(const QIcon& icon);
    // The null icon for handle 0, nothing for a handle that was never given out.
    std::optional<QIcon> find(IconHandle handle) const;

private:
    std::map<IconHandle, QIcon> m_icons;
    IconHandle m_last = 0x20000;
};

} // namespace shell
