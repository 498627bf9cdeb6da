// SPDX-FileCopyrightText: 2026 The qmClient authors
// SPDX-License-Identifier: GPL-3.0-or-later
#include "app/Selection.h"

#include "app/Keys.h"
#include "platform/basic/Conversion.h"

#include <optional>

namespace app {

void Selection::ChangeItem() {
    errors::Procedure proc{m_parts.errorHandler, "frmMain", "ChangeItem"};
    std::string callID = "-1";
    const auto config = m_parts.state.config;
    const auto item = m_parts.list.SelectedItem();
    if (config && config->watchesMailboxes() && item) {
        const auto tab = m_parts.tabStrip.SelectedItem();
        const bool oneMailbox = m_parts.tabStrip.Tabs().Count() < 2;
        if (tab || oneMailbox) {
            proc.step([&] { callID = withoutPrefix(item->Key(), kItemKeyPrefix); });
            std::optional<std::int32_t> mailboxID;
            proc.step([&] {
                mailboxID =
                    tab ? basic::CLng(withoutPrefix(tab->Key, kTabKeyPrefix)) : config->Mailboxes.at(1)->ID;
            });
            if (mailboxID && !m_parts.state.currentConnection)
                openMailbox(proc, *mailboxID);
        }
    }
    const auto connection = m_parts.state.currentConnection; // held while others work with it
    proc.step([&] { m_parts.itemChanged(connection, callID); });
}

void Selection::MoveList(bool down) {
    errors::Procedure proc{m_parts.errorHandler, "frmMain", "MoveList"};
    forms::ListView& list = m_parts.list;
    const auto item = list.SelectedItem();
    if (!item)
        return;
    const int position = item->Index() + (down ? 1 : -1);
    if (position < 1 || position > list.ListItems().Count())
        return;
    const forms::ListItem reached = list.ListItems().Item(position);
    proc.step([&] { list.SetMultiSelect(false); });
    proc.step([&] { list.SetSelectedItem(reached); });
    proc.step([&] { list.SetMultiSelect(true); });
    proc.step([&] { list.EnsureVisible(reached); });
    proc.step([&] { ChangeItem(); });
}

void Selection::openMailbox(errors::Procedure& proc, std::int32_t mailboxID) {
    proc.step([&] {
        m_parts.state.currentConnection = m_parts.common.GetMBXCon(mailboxID, *m_parts.state.config);
    });
}

} // namespace app
