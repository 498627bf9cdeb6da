// SPDX-FileCopyrightText: 2026 The qmClient authors
// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once
// Looks at every mailbox of a server, one after the other: the body of a search. Runs on the search's own
// thread with a file system and a database engine of its own. A server that goes away in the middle is waited
// for a while: what is missing from the list could not be chosen.

#include "dialogs/FoundMailboxes.h"
#include "platform/jet/Engine.h"
#include "platform/share/FileSystemObject.h"

#include <chrono>
#include <functional>
#include <string>

namespace dialogs {

class MailboxReading {
public:
    struct Surroundings {
        std::function<bool()> isCancelled;
        std::function<void(int read, int total)> progressed;
        // Sleeps between two looks at a server that went away; ends early when cancelled.
        std::function<void(std::chrono::milliseconds)> sleep;
    };

    static constexpr std::chrono::milliseconds kLook{500};
    static constexpr int kLooks = 20; // ten seconds

    MailboxReading(share::FileSystemObject& files, Surroundings surroundings)
        : m_files(files), m_surroundings(std::move(surroundings)) {}

    // `qmPath` is the root of the server's share; without the mailboxes' folder in it nothing is found.
    // Throws nothing but what is out of anybody's hands (no memory).
    FoundMailboxes read(const std::string& qmPath);

private:
    std::vector<std::string> subFolders(const std::string& folder);
    void readInto(FoundMailboxes& found, const std::string& qmPath, std::int32_t number);
    bool isOpen(jet::Connection& connection, const std::string& database);
    // Whether the server could not be reached and can be again.
    bool wasAway(const std::string& folder);
    // Whether it can be reached, now or soon.
    bool comesBack(const std::string& folder);

    share::FileSystemObject& m_files;
    Surroundings m_surroundings;
    jet::Engine m_engine{m_files};
    bool m_isGone = false;
};

} // namespace dialogs
