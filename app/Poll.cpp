// SPDX-FileCopyrightText: 2026 The qmClient authors
// SPDX-License-Identifier: GPL-3.0-or-later
#include "app/Poll.h"

#include "app/CallCount.h"
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

} // namespace

Poll::Poll(Parts parts) : m_parts(std::move(parts)) {}

void Poll::mTimer_ThatTime() {
    if (m_parts.state.exitRequested) {
        exitNow();
        return;
    }
    m_askedAgain = true;
    m_parts.shareAccess.afterWaiting([this] { runPolls(); });
}

bool Poll::isAsking() const {
    const CountsAhead* countsAhead = m_parts.shareAccess.countsAhead;
    return countsAhead != nullptr && countsAhead->isAsking();
}

// A poll that is under way, or whose answers are still to come, looks at its end whether one more was asked
// for.
void Poll::runPolls() {
    if (m_running || isAsking())
        return;
    const QScopedValueRollback running(m_running, true);
    while (std::exchange(m_askedAgain, false) && !isEnding() && !askAhead())
        pollOnce();
}

// True when the poll goes on as soon as the answers are there.
bool Poll::askAhead() {
    CountsAhead* countsAhead = m_parts.shareAccess.countsAhead;
    if (countsAhead == nullptr)
        return false;
    const auto config = m_parts.state.config;
    CountQuestion question{m_parts.common.GetQMPath(config->ServerName), {}};
    for (const auto& mailbox : config->Mailboxes)
        question.databases[mailbox->ID] = data::mailboxDatabase(question.share, mailbox->ID);
    const std::uint32_t generation = m_parts.state.generation;
    return countsAhead->ask(std::move(question), [this, generation](CountAnswers answers) {
        m_parts.shareAccess.afterWaiting(
            [this, generation, answers = std::move(answers)] { runOver(answers, generation); });
    });
}

void Poll::runOver(CountAnswers answers, std::uint32_t generation) {
    if (isEnding())
        return;
    if (m_parts.state.generation == generation) {
        const QScopedValueRollback running(m_running, true);
        m_answers = std::move(answers);
        pollOnce();
        m_answers.reset();
    }
    runPolls();
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
    const bool served = state.notConnected ? proc.value(false, [&] { return isServerThere(); })
                                           : countAll(proc, generation) && waitedForAnyone;
    if (isOver(generation))
        return;
    if (served)
        proc.step([&] { m_parts.main.InitData(); }); // polls by itself, right after this one
    else
        concludePoll(proc);
}

bool Poll::isServerThere() {
    return m_answers ? m_answers->isShareThere : m_parts.main.InitConnection();
}

// Answers whether any mailbox told its count. Without a mailbox to watch there is nobody to wait for.
bool Poll::countAll(errors::Procedure& proc, std::uint32_t generation) {
    const auto config = m_parts.state.config;
    if (!config->watchesMailboxes())
        return false;
    const auto mailboxes = config->Mailboxes; // a copy: what runs inside may change them
    bool answered = false;
    for (const auto& mailbox : mailboxes) {
        answered = countMailbox(proc, *config, *mailbox) || answered;
        if (!proc.running() || isOver(generation))
            return false;
    }
    if (m_parts.state.firstPoll)
        m_parts.state.nobodyAnswered = !answered;
    return answered;
}

// Answers whether the mailbox told its count.
bool Poll::countMailbox(errors::Procedure& proc, const data::clsConfig& config, data::clsMailbox& mailbox) {
    std::optional<std::int32_t> current;
    if (m_answers && m_answers->mailboxes.contains(mailbox.ID))
        current = countFrom(proc, config, mailbox.ID);
    else
        current = count(proc, config, mailbox.ID);
    if (current && *current > mailbox.LastCallCount)
        countGrown(proc, mailbox, *current);
    return current.has_value();
}

std::optional<std::int32_t> Poll::count(errors::Procedure& proc, const data::clsConfig& config,
                                        std::int32_t mailboxID) {
    std::shared_ptr<jet::Connection> connection;
    proc.step([&] { connection = m_parts.common.GetMBXCon(mailboxID, config); });
    if (!connection)
        return std::nullopt;
    std::shared_ptr<jet::Recordset> records;
    proc.step([&] { records = connection->Execute(data::kCountCalls); });
    if (!records)
        return std::nullopt;
    std::optional<std::int32_t> current;
    proc.step([&] { current = callCount(*records); });
    return current;
}

// An answer counts once: "try again" asks the server again.
std::optional<std::int32_t> Poll::countFrom(errors::Procedure& proc, const data::clsConfig& config,
                                            std::int32_t mailboxID) {
    std::optional<CountAnswer> answer = m_answers->mailboxes.at(mailboxID);
    if (!answer->isAvailable)
        return std::nullopt;
    std::optional<std::int32_t> current;
    proc.step([&] {
        const std::optional<CountAnswer> ahead = std::exchange(answer, std::nullopt);
        if (!ahead)
            current = count(proc, config, mailboxID);
        else if (ahead->failure)
            throw basic::RuntimeError(*ahead->failure);
        else
            current = ahead->count;
    });
    return current;
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
    if (!proc.running())
        return;
    if (state.firstPoll) {
        state.newCallTotal = 0;
        // Nobody was asked where nobody is watched, and the options may put back whom they took out
        // meanwhile.
        state.firstPoll = !state.config->watchesMailboxes();
    } else if (state.newCallTotal >= 1) {
        proc.step([&] { m_parts.announce(state.newCallTotal); });
    }
}

} // namespace app
