// SPDX-FileCopyrightText: 2026 The qmClient authors
// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once
// The clipboard, as an interface so that tests can look at what is put there. Texts are UTF-8, put as plain
// text. User-interface thread.

#include <string_view>

namespace forms {

class Clipboard {
public:
    virtual ~Clipboard() = default;
    virtual void Clear() = 0;
    virtual void SetText(std::string_view text) = 0;
};

} // namespace forms
