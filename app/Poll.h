// SPDX-FileCopyrightText: 2026 The qmClient authors
// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once
// The poll: counts every watched mailbox's calls, adds what is new to the totals, refreshes the list where it
// can and announces the total. One poll at a time: one that is asked for while another runs (its list refresh
// lets events run) starts right after, and so does one that is asked for in a wait for a server. Servers are
// asked for all counts ahead, while the window lives on; the routine then runs over their answers. Also
// carries out the deferred exit and puts the player back. Failures are reported as frmMain's mTimer_ThatTime.
// What it is given must outlive it; user-interface thread.

#include "app/MainProcedures.h"
#include "app/MainState.h"
#include "app/ShareAccess.h"
#include "data/basCommon.h"
#include "errors/Procedure.h"
#include "platform/forms/TabStrip.h"
#include "platform/forms/Timer.h"

#include <cstdint>
#include <functional>
#include <memory>
#include <optional>

namespace app {

class Poll {
public:
    struct Parts {
        errors::ErrorHandler& errorHandler;
        data::basCommon& common;
        forms::TabStrip& tabStrip;
        forms::Timer& timer;
        MainState& state;
        MainProcedures& main;
        std::function<void(std::int32_t newCalls)> announce; // shows the popup with this number
        const ShareAccess& shareAccess;
    };

    explicit Poll(Parts parts);

    void mTimer_ThatTime();

private:
    bool isEnding() const { return !m_parts.state.config || m_parts.state.exitRequested; }
    // Whether a poll of this generation is to end without its further steps.
    bool isOver(std::uint32_t generation) const {
        return isEnding() || m_parts.state.generation != generation;
    }
    void exitNow();
    bool isAsking() const;
    void runPolls();
    bool askAhead();
    void runOver(CountAnswers answers, std::uint32_t generation);
    void pollOnce();
    bool countAll(errors::Procedure& proc, std::uint32_t generation);
    bool countMailbox(errors::Procedure& proc, const data::clsConfig& config, data::clsMailbox& mailbox);
    std::optional<std::int32_t> count(errors::Procedure& proc, const data::clsConfig& config,
                                      std::int32_t mailboxID);
    std::optional<std::int32_t> countFrom(errors::Procedure& proc, const data::clsConfig& config,
                                          std::int32_t mailboxID);
    bool isServerThere();
    void countGrown(errors::Procedure& proc, data::clsMailbox& mailbox, std::int32_t current);
    void refreshList(errors::Procedure& proc, const data::clsMailbox& mailbox);
    void concludePoll(errors::Procedure& proc);

    Parts m_parts;
    std::optional<CountAnswers> m_answers; // of this poll, where they came ahead
    bool m_running = false;
    bool m_askedAgain = false;
};

} // namespace app
