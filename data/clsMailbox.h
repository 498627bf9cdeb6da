// SPDX-FileCopyrightText: 2026 The qmClient authors
// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once
// One watched mailbox: what the settings say of it, and the counts that the poll keeps in memory. Shared by
// everybody who works on it; user-interface thread.

#include <cstdint>
#include <string>

namespace errors {
class ErrorHandler;
}

namespace data {

class clsMailbox {
public:
    explicit clsMailbox(errors::ErrorHandler& errors) : m_errors(errors) {}

    // Index of the mailbox's image in the tabs' image list.
    std::int32_t GetIconID() const;

    std::int32_t ID = 0;
    std::string Name;
    std::string Description;
    std::int32_t LastCallCount = 0; // rows of the call log at the last poll
    std::int32_t NewCallCount = 0;  // since the user last looked
    std::string MailboxType;

private:
    errors::ErrorHandler& m_errors;
};

} // namespace data
