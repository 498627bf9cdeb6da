// SPDX-FileCopyrightText: 2026 The qmClient authors
// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once
// The desktop's clipboard. Needs an application object while it is used.

#include "platform/forms/Clipboard.h"

namespace forms {

class QtClipboard : public Clipboard {
public:
    void Clear() override;
    void SetText(std::string_view text) override;
};

} // namespace forms
