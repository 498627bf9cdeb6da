// SPDX-FileCopyrightText: 2026 The qmClient authors
// SPDX-License-Identifier: GPL-3.0-or-later
#include "app/MailboxData.h"

#include "app/StatusLine.h"
#include "data/MailboxKey.h"
#include "platform/basic/ObjectOf.h"
#include "resources/Icons.h"
#include "resources/StringTable.h"

#include <string>

namespace app {
namespace {

using resources::LoadLocalString;

std::int32_t inMilliseconds(std::int32_t seconds) {
    std::int32_t result = 0;
    if (__builtin_mul_overflow(seconds, 1000, &result))
        throw basic::RuntimeError(basic::kOverflow);
    return result;
}

} // namespace

void MailboxData::InitData() {
    errors::Procedure proc{m_parts.errorHandler, "frmMain", "InitData"};
    MainState& state = m_parts.state;
    const auto config = state.config;
    if (!config)
        return;
    const std::uint32_t generation = ++state.generation;
    const auto goesOn = [&] { return proc.running() && state.generation == generation; };
    countAnew(*config);
    proc.step([&] { m_parts.timer.SetInterval(inMilliseconds(config->PollInterval)); });
    if (!goesOn())
        return;
    clear(proc);
    const bool isConnected = proc.value(false, [&] { return m_parts.main.InitConnection(); });
    if (!goesOn())
        return;
    state.notConnected = !isConnected;
    if (isConnected)
        showMailboxes(proc, *config);
    else
        proc.step([&] { addNotConnectedLine(m_parts.list); });
}

// First of all, for an Abort ends everything that follows: the next poll learns the counts then, too, and
// builds nothing anew.
void MailboxData::countAnew(const data::clsConfig& config) {
    MainState& state = m_parts.state;
    state.notConnected = state.nobodyAnswered = false;
    state.firstPoll = true;
    forgetNewCalls(config);
}

void MailboxData::forgetNewCalls(const data::clsConfig& config) {
    m_parts.state.newCallTotal = 0;
    for (const auto& mailbox : config.Mailboxes)
        mailbox->NewCallCount = 0;
}

void MailboxData::clear(errors::Procedure& proc) {
    proc.step([&] { m_parts.tabStrip.Tabs().Clear(); });
    proc.step([&] { m_parts.list.ListItems().Clear(); });
    proc.step([&] { m_parts.state.currentConnection.reset(); });
    proc.step([&] { beginStatusLine(m_parts.list); });
}

// Every report and the list let events run, in which everything may be built anew or the window unloaded.
void MailboxData::showMailboxes(errors::Procedure& proc, const data::clsConfig& config) {
    MainState& state = m_parts.state;
    const std::uint32_t generation = state.generation;
    proc.step([&] { addStatusLine(m_parts.list, LoadLocalString(3771, "Loading, please wait...")); });
    addTabs(proc, config);
    if (state.generation != generation)
        return;
    proc.step([&] { m_parts.main.layOut(); });
    proc.step([&] { state.redock = state.firstPoll = true; });
    proc.step([&] { m_parts.main.LoadList(); });
    if (state.generation != generation)
        return;
    proc.step([&] { m_parts.main.UpdateButtonStates(); });
    proc.step([&] { forgetNewCalls(config); });
    proc.step([&] { m_parts.main.mTimer_ThatTime(); });
}

void MailboxData::addTabs(errors::Procedure& proc, const data::clsConfig& config) {
    forms::TabCollection& tabs = m_parts.tabStrip.Tabs();
    const std::uint32_t generation = m_parts.state.generation;
    const data::MailboxCollection mailboxes = config.Mailboxes;
    for (const auto& mailbox : mailboxes) {
        if (!proc.running() || m_parts.state.generation != generation)
            return;
        proc.step([&] {
            tabs.Add(data::mailboxKey(std::to_string(mailbox->ID)), mailbox->Name, resources::kMailboxImage);
        });
    }
    // A single mailbox is shown without tabs: no tabs is how everybody recognises that case.
    if (proc.value(false, [&] { return tabs.Count() == 1; }))
        proc.step([&] { tabs.Clear(); });
}

bool MailboxData::InitConnection() {
    errors::Procedure proc{m_parts.errorHandler, "frmMain", "InitConnection"};
    std::string server;
    proc.step([&] { server = basic::objectOf(m_parts.state.config).ServerName; });
    if (server.empty())
        return false;
    return proc.value(false, [&] { return m_parts.files.FolderExists(m_parts.common.GetQMPath(server)); });
}

} // namespace app
