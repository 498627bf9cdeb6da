// SPDX-FileCopyrightText: 2026 The qmClient authors
// SPDX-License-Identifier: GPL-3.0-or-later
#include "app/DeleteAll.h"

#include "app/Keys.h"
#include "data/CallLog.h"
#include "errors/ErrorsIgnored.h"
#include "platform/basic/Conversion.h"
#include "platform/basic/RuntimeError.h"
#include "platform/forms/Events.h"
#include "platform/forms/Text.h"
#include "resources/StringTable.h"

#include <string>

namespace app {
namespace {

using resources::LoadLocalString;

constexpr std::int32_t kPauseMs = 500;

// A statement on no connection at all is the platform's error for an object that is not set.
jet::Connection& required(const std::shared_ptr<jet::Connection>& connection) {
    if (!connection)
        throw basic::RuntimeError(basic::kObjectNotSet);
    return *connection;
}

} // namespace

void DeleteAll::operator()(errors::Procedure& proc) const {
    const auto asked = proc.value(std::optional<std::int32_t>(), [&] { return currentMailbox(); });
    if (!asked || !proc.value(false, [&] { return isConfirmed(); }))
        return;
    const auto now = proc.value(std::optional<std::int32_t>(), [&] { return currentMailbox(); });
    if (now != asked)
        return; // everything was built anew while the question was up: it was about another mailbox
    const auto config = m_parts.state.config; // held: a report lets events run, too
    if (emptyLog(proc, *asked, *config))
        deleteMessages(*asked, config->ServerName);
    proc.step([] { forms::doEvents(); });
    proc.step([&] { m_parts.pauseWithEvents(kPauseMs); });
    proc.step([] { forms::doEvents(); });
    proc.step([&] { m_parts.main.LoadList(); });
}

std::optional<std::int32_t> DeleteAll::selectedMailbox() const {
    const auto tab = m_parts.tabStrip.SelectedItem();
    if (!tab)
        return std::nullopt;
    return basic::CLng(withoutPrefix(tab->Key, kTabKeyPrefix));
}

// Nothing when the configuration is gone or has none.
std::optional<std::int32_t> DeleteAll::currentMailbox() const {
    const auto config = m_parts.state.config;
    if (!config || !config->watchesMailboxes())
        return std::nullopt;
    const auto selected = selectedMailbox();
    return selected ? selected : config->Mailboxes.at(1)->ID;
}

bool DeleteAll::isConfirmed() const {
    const QString text =
        forms::toQString(LoadLocalString(3680, "Are you sure you want to delete all of your messages?"));
    const QString title = forms::toQString(LoadLocalString(3681, "Delete All Items"));
    return m_parts.messageBoxes.show(text, forms::kOkCancel | forms::kQuestion | forms::kDefaultButton2,
                                     title) == forms::MessageBoxResult::Ok;
}

// One operation: what is ignored on the way leaves the log as it was, and then the rest does not follow.
bool DeleteAll::emptyLog(errors::Procedure& proc, std::int32_t mailboxID,
                         const data::clsConfig& config) const {
    std::shared_ptr<jet::Connection> connection;
    proc.step([&] { connection = m_parts.common.GetMBXCon(mailboxID, config, jet::Purpose::Change); });
    proc.step([&] { m_parts.stopPlay(); });
    return proc.step([&] { required(connection).BeginTrans(); }) &&
           proc.step([&] { connection->Execute(data::kDeleteCalls); }) &&
           proc.step([&] { connection->CommitTrans(); });
}

// Only of a mailbox that has a tab: with a single one the files stay. Files in use or a share that is gone
// are not reported.
void DeleteAll::deleteMessages(std::int32_t mailboxID, const std::string& server) const noexcept {
    errors::withErrorsIgnored([&] {
        if (selectedMailbox() == mailboxID)
            m_parts.files.DeleteFile(data::messageFiles(m_parts.common.GetQMPath(server), mailboxID), false);
    });
}

} // namespace app
