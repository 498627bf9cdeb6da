// SPDX-FileCopyrightText: 2026 The qmClient authors
// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once
// The command miEClear: empties the call log of the current mailbox and deletes its message files, after the
// user was asked. Its steps are those of the dispatcher's procedure; failures of the message files are
// ignored. A log that was not emptied keeps its files. The question and the error dialog
// let events run: should another mailbox have become the current one meanwhile, nothing of it is touched.
// What it is given must outlive it; user-interface thread.

#include "app/MainProcedures.h"
#include "app/MainState.h"
#include "data/basCommon.h"
#include "data/clsConfig.h"
#include "errors/Procedure.h"
#include "platform/forms/MessageBoxes.h"
#include "platform/forms/TabStrip.h"
#include "platform/share/FileSystemObject.h"

#include <cstdint>
#include <functional>
#include <optional>
#include <string>

namespace app {

class DeleteAll {
public:
    struct Parts {
        data::basCommon& common;
        share::FileSystemObject& files;
        forms::MessageBoxes& messageBoxes;
        forms::TabStrip& tabStrip;
        MainState& state;
        MainProcedures& main;
        std::function<void()> stopPlay; // of the player
        std::function<void(std::int32_t milliseconds)> pauseWithEvents;
    };

    explicit DeleteAll(Parts parts) : m_parts(std::move(parts)) {}

    void operator()(errors::Procedure& proc) const;

private:
    std::optional<std::int32_t> selectedMailbox() const;
    std::optional<std::int32_t> currentMailbox() const;
    bool isConfirmed() const;
    bool emptyLog(errors::Procedure& proc, std::int32_t mailboxID, const data::clsConfig& config) const;
    void deleteMessages(std::int32_t mailboxID, const std::string& server) const noexcept;

    Parts m_parts;
};

} // namespace app
