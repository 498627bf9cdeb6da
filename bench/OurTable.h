// SPDX-FileCopyrightText: 2026 The qmClient authors
// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once
// Call logs of database files, read the way the client does: by a network name, through the provider's
// connection, opened and closed each time. One object stands for one run of the client, so what the engine
// remembers between two polls is remembered here, too.

#include "platform/jet/Connection.h"
#include "platform/share/LocalFileSystemObject.h"

#include <cstddef>
#include <cstdint>
#include <string>

namespace bench {

// The provider's name for the call log in a file of a share.
std::string connectionTo(const std::string& path);

// What a poll does for one mailbox.
std::int64_t countCalls(jet::Engine& engine, const std::string& connection);
// The statement of the call list, newest first, with the columns that it shows; the bytes of their texts.
std::size_t readForList(jet::Engine& engine, const std::string& connection);

// A call log in a folder that the administrator has mapped for the network name.
class OurTable {
public:
    OurTable(const std::string& folder, const std::string& file);

    std::int64_t count() { return countCalls(m_engine, m_connectionString); }
    // What the command does to one mailbox's log.
    void deleteAll();
    // Every column of every row; answers the bytes of all texts.
    std::size_t readAll();
    std::size_t readForList() { return bench::readForList(m_engine, m_connectionString); }

private:
    std::string m_connectionString;
    share::LocalFileSystemObject m_files;
    jet::Engine m_engine;
};

} // namespace bench
