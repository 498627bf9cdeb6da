// SPDX-FileCopyrightText: 2026 The qmClient authors
// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once
// The call log of a database file in a folder, read the way the client does: by a network name that a folder
// is mapped for, through the provider's connection, opened and closed each time. One object stands for one
// run of the client, so what the engine remembers between two polls is remembered here, too.

#include "platform/jet/Connection.h"
#include "platform/share/LocalFileSystemObject.h"

#include <cstddef>
#include <cstdint>
#include <string>

namespace bench {

class OurTable {
public:
    OurTable(const std::string& folder, const std::string& file);

    // What a poll does for one mailbox.
    std::int64_t count();
    // What the command does to one mailbox's log.
    void deleteAll();
    // Every column of every row; answers the bytes of all texts.
    std::size_t readAll();
    // The statement of the call list, newest first, with the columns that it shows.
    std::size_t readForList();

private:
    std::string m_connectionString;
    share::LocalFileSystemObject m_files;
    jet::Engine m_engine;
};

} // namespace bench
