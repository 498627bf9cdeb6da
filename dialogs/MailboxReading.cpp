// SPDX-FileCopyrightText: 2026 The qmClient authors
// SPDX-License-Identifier: GPL-3.0-or-later
#include "dialogs/MailboxReading.h"

#include "data/basCommon.h"
#include "dialogs/MailboxFolders.h"
#include "platform/jet/Connection.h"

#include <exception>
#include <utility>

namespace dialogs {
namespace {

basic::RuntimeError failureOf(const std::exception& error) {
    const auto* known = dynamic_cast<const basic::RuntimeError*>(&error);
    return known != nullptr ? *known : basic::RuntimeError(basic::kInternalError, error.what());
}

} // namespace

FoundMailboxes MailboxReading::read(const std::string& qmPath) {
    FoundMailboxes found;
    try {
        const std::vector<std::int32_t> numbers = mailboxNumbers(subFolders(data::mailboxesFolder(qmPath)));
        const int total = static_cast<int>(numbers.size());
        for (int i = 0; i < total && !m_isGone && !m_surroundings.isCancelled(); ++i) {
            m_surroundings.progressed(i, total);
            readInto(found, qmPath, numbers[static_cast<std::size_t>(i)]);
        }
    } catch (const std::exception& error) {
        found.failure = failureOf(error);
    }
    return found;
}

std::vector<std::string> MailboxReading::subFolders(const std::string& folder) {
    if (!m_files.FolderExists(folder))
        return {};
    try {
        return m_files.SubFolders(folder);
    } catch (const basic::RuntimeError&) {
        if (!comesBack(folder))
            throw;
    }
    return m_files.SubFolders(folder);
}

void MailboxReading::readInto(FoundMailboxes& found, const std::string& qmPath, std::int32_t number) {
    const std::string database = data::mailboxDatabase(qmPath, number);
    jet::Connection connection(m_engine);
    if (!isOpen(connection, database) &&
        !(wasAway(data::mailboxesFolder(qmPath)) && isOpen(connection, database)))
        return; // a mailbox that is not available, as for everybody
    try {
        found.mailboxes.push_back({number, readMailboxInfo(connection), std::nullopt});
    } catch (const std::exception& error) {
        found.mailboxes.push_back({number, std::nullopt, failureOf(error)});
    }
}

bool MailboxReading::isOpen(jet::Connection& connection, const std::string& database) {
    try {
        if (!m_files.FileExists(database))
            return false;
        connection.Open(data::connectionString(database));
        return true;
    } catch (const std::exception&) {
        return false;
    }
}

bool MailboxReading::wasAway(const std::string& folder) {
    return !m_files.FolderExists(folder) && comesBack(folder);
}

bool MailboxReading::comesBack(const std::string& folder) {
    for (int look = 0; look < kLooks && !m_surroundings.isCancelled(); ++look) {
        if (m_files.FolderExists(folder))
            return true;
        m_surroundings.sleep(kLook);
    }
    m_isGone = true;
    return false;
}

} // namespace dialogs
