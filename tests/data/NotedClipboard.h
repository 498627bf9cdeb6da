// SPDX-FileCopyrightText: 2026 The qmClient authors
// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once
// A clipboard that can be looked at, and that somebody else can hold.

#include "platform/basic/RuntimeError.h"
#include "platform/forms/Clipboard.h"

#include <string>

namespace data {

class NotedClipboard final : public forms::Clipboard {
public:
    void Clear() override {
        if (isLocked)
            throw basic::RuntimeError(521);
        text.clear();
        ++cleared;
    }
    void SetText(std::string_view newText) override { text = newText; }

    std::string text = "from before";
    int cleared = 0;
    bool isLocked = false;
};

} // namespace data
