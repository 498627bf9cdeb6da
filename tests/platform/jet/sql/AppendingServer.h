// SPDX-FileCopyrightText: 2026 The qmClient authors
// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once
// A process that appends calls as the server does while this one deletes them and a third one reads, and what
// must hold meanwhile: each delete takes the calls that are there, so what is left at any time is one run of
// numbers without a gap that ends with the newest. A lost call would be a gap, one that came back a step
// backwards.

#include "platform/jet/Connection.h"
#include "tests/platform/jet/EmptyingScenario.h"
#include "tests/platform/jet/WrittenDatabase.h"

#include <gtest/gtest.h>
#include <sys/types.h>

#include <cstdint>
#include <functional>
#include <string>

namespace jet::test {

// How many calls are appended: so many, or what the environment variable QM_ROUNDS says, for a long run.
int roundsOr(int usual);

// Waits as long as it takes, in short steps.
SharingWait patience();

// How many calls the server may append, shared by the two processes. Without it a server that writes all the
// time leaves a slow client no moment to read in, and the test says more about the machine than about us.
class Allowance {
public:
    Allowance();
    ~Allowance();
    Allowance(const Allowance&) = delete;
    Allowance& operator=(const Allowance&) = delete;

    void add(std::uint64_t calls) const;
    // Waits until there is one more.
    void takeOne() const;

private:
    int m_counter;
};

// Appends so many calls, each one with the database to itself; the exit code of a process.
int appendCalls(share::FileSystemObject& files, const std::string& database, int rounds,
                const Allowance& allowance);

class AppendingServer {
public:
    // Runs `work` in a process of its own; it ends with the answer as exit code.
    explicit AppendingServer(const std::function<int(const Allowance&)>& work);
    // Waits for the process.
    ~AppendingServer();
    AppendingServer(const AppendingServer&) = delete;
    AppendingServer& operator=(const AppendingServer&) = delete;

    void allow(std::uint64_t calls) const { m_allowance.add(calls); }
    bool hasEnded() const;

private:
    Allowance m_allowance;
    pid_t m_child;
    mutable bool m_hasEnded = false;
};

// Another client, in a process of its own: it looks as often as it was asked to.
class WatchingClient {
public:
    // Runs `work` there; it ends with the answer as exit code.
    explicit WatchingClient(const std::function<int(const std::function<bool()>& goesOn)>& work);
    // Waits until it has looked as often as it was asked to.
    ~WatchingClient();
    WatchingClient(const WatchingClient&) = delete;
    WatchingClient& operator=(const WatchingClient&) = delete;

    void look() const;

private:
    int m_requests = -1; // the pipe's end to write to
    pid_t m_child = -1;
};

// Reads all numbers, counts, and reads them again, as long as it goes on; the exit code of a process.
int watchCalls(share::FileSystemObject& files, const std::string& database,
               const std::function<bool()>& goesOn);

struct DeleteRounds {
    int deletes = 0;
    int looks = 0;
    std::int32_t lastNumber = 0; // of a call appended after the server's last one
};

DeleteRounds deleteWhileAppending(Engine& engine, const std::string& database, const AppendingServer& server,
                                  const WatchingClient& watcher);

} // namespace jet::test
