// SPDX-FileCopyrightText: 2026 The qmClient authors
// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once
// The options dialog's list of mailboxes: a row for each that was found, with a check box that says whether
// it is watched. Its statements are steps of the procedure that calls. What it is given must outlive it;
// user-interface thread.

#include "data/basCommon.h"
#include "data/clsConfig.h"
#include "dialogs/FoundMailboxes.h"
#include "errors/Procedure.h"
#include "platform/forms/ListView.h"

#include <optional>

namespace dialogs {

class OptionsList {
public:
    OptionsList(errors::ErrorHandler& errorHandler, const data::basCommon& common, forms::ListView& list)
        : m_errors(errorHandler), m_common(common), m_list(list) {}

    // Empties the list and creates its columns.
    void begin(errors::Procedure& proc);
    void add(errors::Procedure& proc, const data::clsConfig& config, const FoundMailbox& mailbox);
    // Checks what is watched. A mailbox that is not in the list is a failure like any other.
    void check(errors::Procedure& proc, const data::clsConfig& config);
    // Adds a mailbox to the settings for each row that is checked.
    void take(errors::Procedure& proc, data::clsConfig& config);

private:
    std::optional<MailboxInfo> infoOf(errors::Procedure& proc, const data::clsConfig& config,
                                      const FoundMailbox& mailbox) const;
    std::optional<MailboxInfo> readAnew(const data::clsConfig& config, std::int32_t number) const;

    errors::ErrorHandler& m_errors;
    const data::basCommon& m_common;
    forms::ListView& m_list;
};

} // namespace dialogs
