// SPDX-FileCopyrightText: 2026 The qmClient authors
// SPDX-License-Identifier: GPL-3.0-or-later
#include "data/clsMailbox.h"

#include "errors/Procedure.h"

namespace data {

// Both branches answer the same image on purpose: type "M" is to get one of its own.
std::int32_t clsMailbox::GetIconID() const {
    errors::Procedure proc{m_errors, "clsMailbox", "GetIconID"};
    std::int32_t icon = 0;
    proc.step([&] {
        if (MailboxType == "M") // NOLINT(bugprone-branch-clone)
            icon = 1;
        else
            icon = 1;
    });
    return icon;
}

} // namespace data
