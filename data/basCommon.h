// SPDX-FileCopyrightText: 2026 The qmClient authors
// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once
// The only builder of server paths and of connections to mailbox databases. Failures are reported under the
// module "basCommon". What it is given must outlive it; user-interface thread.

#include "errors/ErrorHandler.h"
#include "platform/jet/Connection.h"
#include "platform/share/FileSystemObject.h"

#include <cstdint>
#include <functional>
#include <memory>
#include <string>
#include <string_view>

namespace data {

class clsConfig;

class basCommon {
public:
    using NewConnection = std::function<std::shared_ptr<jet::Connection>()>;

    basCommon(errors::ErrorHandler& errorHandler, share::FileSystemObject& files,
              NewConnection newConnection);

    // Root of the server's share, \\<server>\Quillamar_0$, whatever backslashes the name carries.
    std::string GetQMPath(std::string_view serverName) const;

    // An open connection to the mailbox's call log. Null, without a word to the user, when the database is
    // missing or cannot be opened: the caller skips the mailbox. Who is about to change it gets a connection
    // also while somebody else has the database to himself.
    std::shared_ptr<jet::Connection> GetMBXCon(std::int32_t mailboxID, const clsConfig& config,
                                               jet::Purpose purpose = jet::Purpose::Read) const;

private:
    errors::ErrorHandler& m_errors;
    share::FileSystemObject& m_files;
    NewConnection m_newConnection;
};

// The provider's connection string for a database.
std::string connectionString(const std::string& database);

// Below a server's share root: the folder of the mailboxes' folders, the mailbox's folder, its call log, and
// the sound of one call.
std::string mailboxesFolder(std::string_view qmPath);
std::string mailboxFolder(std::string_view qmPath, std::int32_t mailboxID);
std::string mailboxDatabase(std::string_view qmPath, std::int32_t mailboxID);
std::string messageFile(std::string_view qmPath, std::int32_t mailboxID, std::string_view callID);
// The pattern of all sounds of a mailbox.
std::string messageFiles(std::string_view qmPath, std::int32_t mailboxID);

} // namespace data
