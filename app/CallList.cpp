// SPDX-FileCopyrightText: 2026 The qmClient authors
// SPDX-License-Identifier: GPL-3.0-or-later
#include "app/CallList.h"

#include "app/ChosenMailbox.h"
#include "app/StatusLine.h"
#include "data/CallLog.h"
#include "platform/forms/Events.h"
#include "platform/forms/ListViewMacros.h"
#include "resources/StringTable.h"

#include <QScopedValueRollback>

#include <utility>

namespace app {
namespace {

using resources::LoadLocalString;

std::vector<data::ColumnDescription> columnTable() {
    return {{"", "", {70}, 0},
            {LoadLocalString(3694, "Date"), data::kCallDate, {1700}, 1},
            {LoadLocalString(3695, "Caller ID"), data::kCallerID, {900}, 1},
            {LoadLocalString(3696, "Caller Name"), data::kCallerName, {1000}, 1},
            {LoadLocalString(3689, "Message"), data::kMessageLengthS, {600}, 1}};
}

} // namespace

void CallList::LoadList() {
    m_askedAgain = true;
    if (m_running)
        return;
    const QScopedValueRollback running(m_running, true);
    while (std::exchange(m_askedAgain, false) && m_parts.state.config)
        loadOnce();
}

void CallList::loadOnce() {
    errors::Procedure proc{m_parts.errorHandler, "frmMain", "LoadList"};
    const auto config = m_parts.state.config;
    if (!config->watchesMailboxes()) {
        showNoMailboxes(proc);
        return;
    }
    std::vector<data::ColumnDescription> columns;
    proc.step([&] { columns = columnTable(); });
    proc.step([&] { m_parts.list.ListItems().Clear(); });
    std::optional<std::int32_t> mailboxID; // none while several mailboxes have tabs and no tab is selected
    proc.step([&] {
        auto& tabs = m_parts.tabStrip;
        mailboxID = chosenMailbox(tabs.Tabs().Count(), tabs.SelectedItem(), *config);
    });
    if (mailboxID)
        loadMailbox(proc, *config, *mailboxID, columns);
    m_parts.state.listConnection.reset();
    proc.step([] { forms::doEvents(); });
    proc.step([&] { m_parts.main.ChangeItem(); });
    proc.step([&] { m_parts.main.UpdateButtonStates(); });
    proc.finish([&] { m_parts.state.listConnection.reset(); });
}

void CallList::showNoMailboxes(errors::Procedure& proc) {
    proc.step([&] { beginStatusLine(m_parts.list); });
    proc.step([&] {
        addStatusLine(m_parts.list, LoadLocalString(3772, "There are currently no mailboxes configured."));
    });
}

// An old popup can still be clicked where the list was built without a server: it goes on saying so.
void CallList::showNotConnected(errors::Procedure& proc) {
    if (!m_parts.state.notConnected)
        return;
    proc.step([&] { beginStatusLine(m_parts.list); });
    proc.step([&] { addNotConnectedLine(m_parts.list); });
}

void CallList::loadMailbox(errors::Procedure& proc, const data::clsConfig& config, std::int32_t mailboxID,
                           const std::vector<data::ColumnDescription>& columns) {
    // Held: the window may be unloaded while a server is waited for.
    std::shared_ptr<jet::Connection> connection;
    proc.step([&] { connection = m_parts.common.GetMBXCon(mailboxID, config); });
    if (!m_parts.state.config)
        return;
    if (!connection) {
        showNotConnected(proc);
        return;
    }
    m_parts.state.listConnection = connection;
    std::shared_ptr<jet::Recordset> records;
    proc.step([&] { records = connection->Execute(data::kAllCalls); });
    if (!records)
        return;
    proc.step([&] {
        const auto selected = m_parts.list.SelectedItem();
        m_parts.fillList(m_parts.list, *records, columns, true,
                         selected ? selected->Key() : std::string_view());
    });
    proc.step([&] { forms::selectFullRows(m_parts.list); });
    const int count = proc.value(0, [&] { return m_parts.list.ListItems().Count(); });
    for (int index = 1; index <= count && proc.running(); ++index)
        proc.step([&] { m_parts.list.ListItems().Item(index).SetGhosted(false); });
}

} // namespace app
