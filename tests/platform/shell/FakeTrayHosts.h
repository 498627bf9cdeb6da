// SPDX-FileCopyrightText: 2026 The qmClient authors
// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once
// A desktop whose notification area comes and goes as the test says.

#include "platform/shell/TrayHosts.h"

namespace shell {

class FakeTrayHosts : public TrayHosts {
public:
    TrayHostKind kind() const override { return m_kind; }
    void become(TrayHostKind kind) {
        m_kind = kind;
        Q_EMIT changed();
    }

private:
    TrayHostKind m_kind = TrayHostKind::None;
};

} // namespace shell
