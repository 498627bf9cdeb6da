// SPDX-FileCopyrightText: 2026 The qmClient authors
// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once
// Asks servers, and mounts that they answer for, for the counts of a poll before the poll's routine runs, on
// a thread of its own, so that the window lives on however long they take. Answers what a connection and the
// count statement would have answered. One question at a time; destroying it ends a question that is under
// way. User-interface thread.

#include "platform/basic/RuntimeError.h"
#include "platform/jet/Engine.h"
#include "platform/share/MountedFileSystemObject.h"
#include "platform/share/RoutedFileSystemObject.h"
#include "platform/share/ShareResolver.h"
#include "platform/share/ThreadWaiter.h"
#include "platform/share/smb/SmbFileSystemObject.h"

#include <QObject>

#include <cstdint>
#include <functional>
#include <map>
#include <optional>
#include <string>
#include <thread>

namespace app {

struct CountAnswer {
    bool isAvailable = false; // there was a connection
    std::optional<std::int32_t> count;
    std::optional<basic::RuntimeError> failure; // of the statement
};

struct CountAnswers {
    bool isShareThere = false;
    std::map<std::int32_t, CountAnswer> mailboxes; // by ID
};

struct CountQuestion {
    std::string share;                             // its root
    std::map<std::int32_t, std::string> databases; // by mailbox
};

class CountsAhead final : public QObject {
    Q_OBJECT
public:
    using Done = std::function<void(CountAnswers answers)>;

    // `resolver` tells which shares are on the disks of this machine: these are not asked ahead.
    CountsAhead(share::smb::SmbServers& servers, share::ShareResolver resolver);
    ~CountsAhead() override;

    bool isAsking() const noexcept { return m_isAsking; }
    // False when there is nothing to wait for: a disk answers when it is asked. Else `done` is called
    // later, from the event loop.
    bool ask(CountQuestion question, Done done);
    // The program ends; nothing is answered any more.
    void end() noexcept;

private:
    bool mayTakeLong(const share::UncPath& root) const;
    void settle(const share::UncPath& root);
    share::ShareResolver settledResolver() const;
    CountAnswers answersTo(const CountQuestion& question);
    CountAnswer answerFor(const std::string& database);
    CountAnswer countOf(const std::string& database);

    share::smb::SmbServers& m_servers;
    share::ShareResolver m_resolver;
    bool m_isAsking = false;
    std::optional<std::string> m_mapping; // of the server that is asked
    // The thread's own.
    share::ThreadWaiter m_waiter;
    share::MountedFileSystemObject m_folders{settledResolver(), m_waiter};
    share::smb::SmbFileSystemObject m_onServers{m_servers, m_waiter};
    share::RoutedFileSystemObject m_files{settledResolver(), m_folders, m_onServers};
    jet::Engine m_engine{m_files, jet::Engine::sleepBriefly, {.tries = 1}}; // the next tick comes soon
    std::jthread m_thread; // last: what it uses must outlive it
};

} // namespace app
