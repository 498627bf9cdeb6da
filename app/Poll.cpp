// SPDX-FileCopyrightText: 2026 The qmClient authors
// SPDX-License-Identifier: GPL-3.0-or-later
#include "app/Poll.h"

#include "data/CallLog.h"
#include "platform/basic/RuntimeError.h"

#include <QScopedValueRollback>

#include <string>
#include <utility>

namespace app {
namespace {

std::int32_t addChecked(std::int32_t a, std::int32_t b) {
    std::int32_t sum = 0;
    if (__builtin_add_overflow(a, b, &sum))
        throw basic::RuntimeError(basic::kOverflow);
    return sum;
}

std::int32_t firstNumber(jet::Recordset& records) {
    const basic::Variant& value = records.Field(0);
    if (const auto* number = std::get_if<std::int32_t>(&value))
        return *number;
    throw basic::RuntimeError(basic::kTypeMismatch);
}

} // namespace

Poll::Poll(Parts parts) : m_parts(std::move(parts)) {}

void Poll::mTimer_ThatTime() {
    if (m_parts.state.exitRequested) {
        exitNow();
        return;
    }
    m_askedAgain = true;
    if (m_running)
        return;
    const QScopedValueRollback running(m_running, true);
    while (std::exchange(m_askedAgain, false) && m_parts.state.config)
        pollOnce();
}

void Poll::exitNow() {
    // Events run below an open dialog: it is answered first, and the procedure that waits for it gets to its
    // end before the next tick unloads the window.
    if (m_parts.main.answerModalDialog())
        return;
    errors::Procedure proc{m_parts.errorHandler, "frmMain", "mTimer_ThatTime"};
    proc.step([&] { m_parts.timer.SetEnabled(false); });
    proc.step([&] { m_parts.main.unload(); });
}

// Where the server or every mailbox was out of reach when the list was built and answers now, everything is
// built anew, so that the tabs appear and nothing old is announced.
void Poll::pollOnce() {
    errors::Procedure proc{m_parts.errorHandler, "frmMain", "mTimer_ThatTime"};
    if (std::exchange(m_parts.state.redock, false))
        proc.step([&] { m_parts.main.dockPlayer(); });
    MainState& state = m_parts.state;
    const bool waitedForAnyone = state.nobodyAnswered;
    state.firstPoll = state.firstPoll || waitedForAnyone; // old calls of whoever answers now are not new
    const std::uint32_t generation = state.generation;
    const bool served = state.notConnected ? proc.value(false, [&] { return m_parts.main.InitConnection(); })
                                           : countAll(proc, generation) && waitedForAnyone;
    if (state.generation != generation)
        return;
    if (served)
        proc.step([&] { m_parts.main.InitData(); }); // polls by itself, right after this one
    else
        concludePoll(proc);
}

// Answers whether any mailbox told its count. Without a mailbox to watch there is nobody to wait for.
bool Poll::countAll(errors::Procedure& proc, std::uint32_t generation) {
    if (!m_parts.state.config->watchesMailboxes())
        return false;
    const auto mailboxes = m_parts.state.config->Mailboxes; // a copy: what runs inside may change them
    bool answered = false;
    for (const auto& mailbox : mailboxes) {
        answered = countMailbox(proc, *mailbox) || answered;
        if (!proc.running() || m_parts.state.generation != generation)
            return false;
    }
    if (m_parts.state.firstPoll)
        m_parts.state.nobodyAnswered = !answered;
    return answered;
}

// Answers whether the mailbox told its count.
bool Poll::countMailbox(errors::Procedure& proc, data::clsMailbox& mailbox) {
    std::shared_ptr<jet::Connection> connection;
    proc.step([&] { connection = m_parts.common.GetMBXCon(mailbox.ID, *m_parts.state.config); });
    if (!connection)
        return false;
    std::shared_ptr<jet::Recordset> records;
    proc.step([&] { records = connection->Execute(data::kCountCalls); });
    if (!records)
        return false;
    std::optional<std::int32_t> current;
    proc.step([&] { current = firstNumber(*records); });
    if (current && *current > mailbox.LastCallCount)
        countGrown(proc, mailbox, *current);
    return current.has_value();
}

void Poll::countGrown(errors::Procedure& proc, data::clsMailbox& mailbox, std::int32_t current) {
    const std::int32_t fresh = m_parts.state.firstPoll ? 0 : current - mailbox.LastCallCount;
    proc.step([&] { m_parts.state.newCallTotal = addChecked(m_parts.state.newCallTotal, fresh); });
    proc.step([&] { mailbox.NewCallCount = addChecked(mailbox.NewCallCount, fresh); });
    proc.step([&] { mailbox.LastCallCount = current; });
    refreshList(proc, mailbox);
}

// With several mailboxes the place of the selected tab is compared with the mailbox's number, as it always
// was: in practice the list then waits for a click on the popup or on a tab.
void Poll::refreshList(errors::Procedure& proc, const data::clsMailbox& mailbox) {
    const auto isForList = [&] {
        auto& tabs = m_parts.tabStrip;
        if (tabs.Tabs().Count() == 0)
            return true;
        const auto selected = tabs.SelectedItem();
        return selected && std::to_string(selected->Left.value).substr(1) == std::to_string(mailbox.ID);
    };
    if (proc.value(false, isForList))
        proc.step([&] { m_parts.main.LoadList(); });
}

void Poll::concludePoll(errors::Procedure& proc) {
    MainState& state = m_parts.state;
    if (state.newCallTotal >= 1 && !state.firstPoll)
        proc.step([&] { m_parts.announce(state.newCallTotal); });
    if (!proc.running())
        return;
    if (state.firstPoll)
        state.newCallTotal = 0;
    state.firstPoll = false;
}

} // namespace app
