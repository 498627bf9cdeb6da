// SPDX-FileCopyrightText: 2026 The qmClient authors
// SPDX-License-Identifier: GPL-3.0-or-later
#include "app/PlayMessage.h"

#include "app/ChosenMailbox.h"
#include "app/Keys.h"
#include "platform/forms/Text.h"
#include "resources/Icons.h"
#include "resources/StringTable.h"

namespace app {

void PlayMessage::operator()(errors::Procedure& proc) const {
    std::string file;
    proc.step([&] { file = chosenFile(); });
    if (file.empty() || proc.value(false, [&] { return m_parts.player.PlayWave(file); }))
        return;
    if (!m_parts.state.config) // the window was unloaded while the message was read
        return;
    proc.step([&] {
        m_parts.messageBoxes.show(
            forms::toQString(resources::LoadLocalString(3679, "Error playing audio file!")), forms::kOkOnly,
            {});
    });
}

// Empty when there is nothing to play. An ID that is no file name makes a path that no file has.
std::string PlayMessage::chosenFile() const {
    const auto item = m_parts.list.SelectedItem();
    const auto config = m_parts.state.config;
    if (!item || item->SmallIcon() != resources::kCallWithMessage || !config)
        return {};
    const auto mailbox =
        chosenMailbox(m_parts.tabStrip.Tabs().Count(), m_parts.tabStrip.SelectedItem(), *config);
    if (!mailbox)
        return {};
    return data::messageFile(m_parts.common.GetQMPath(config->ServerName), *mailbox,
                             withoutPrefix(item->Key(), kItemKeyPrefix));
}

} // namespace app
