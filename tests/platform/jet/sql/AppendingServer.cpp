// SPDX-FileCopyrightText: 2026 The qmClient authors
// SPDX-License-Identifier: GPL-3.0-or-later
#include "tests/platform/jet/sql/AppendingServer.h"

#include "platform/basic/RuntimeError.h"
#include "platform/jet/CommitWordWriter.h"
#include "platform/jet/SoleAccess.h"

#include <sys/eventfd.h>
#include <sys/prctl.h>
#include <sys/wait.h>
#include <unistd.h>

#include <csignal>
#include <iostream>
#include <system_error>
#include <vector>

namespace jet::test {
namespace {

std::vector<std::int32_t> readNumbers(Connection& connection) {
    std::vector<std::int32_t> numbers;
    const auto records = connection.Execute("SELECT ID FROM CallLog ORDER BY ID");
    for (; !records->eof(); records->MoveNext())
        numbers.push_back(std::get<std::int32_t>(records->Field(0)));
    return numbers;
}

class Observer {
public:
    void see(const std::vector<std::int32_t>& numbers) {
        if (numbers.empty())
            return;
        EXPECT_EQ(static_cast<std::size_t>(numbers.back() - numbers.front()) + 1, numbers.size());
        EXPECT_GE(numbers.front(), m_first);
        EXPECT_GE(numbers.back(), m_last);
        m_first = numbers.front();
        m_last = numbers.back();
    }

private:
    std::int32_t m_first = 1;
    std::int32_t m_last = 0;
};

constexpr std::uint64_t kCallsPerLook = 12;
constexpr std::uint64_t kWithoutLimit = 1'000'000;

// What a client may meet while another program keeps the database to itself, or writes all the time.
bool meansBusy(const basic::RuntimeError& error) {
    return error.number() == basic::kFileAlreadyOpen || error.number() == basic::kProviderFailure;
}

// False when the database could not be read for the moment.
bool see(Connection& connection, const std::string& database, Observer& observer) {
    try {
        connection.Open("Provider=Microsoft.Jet.OLEDB.4.0;Data Source=" + database);
        observer.see(readNumbers(connection));
        return true;
    } catch (const basic::RuntimeError& error) {
        EXPECT_TRUE(meansBusy(error)) << error.description();
        return false;
    }
}

// False when the server had the database to itself for as long as the client asks.
bool deleteAll(Connection& connection) {
    connection.BeginTrans();
    try {
        connection.Execute("DELETE FROM CallLog");
        connection.CommitTrans();
        return true;
    } catch (const basic::RuntimeError& error) {
        EXPECT_TRUE(meansBusy(error)) << error.description();
        connection.RollbackTrans();
        return false;
    }
}

} // namespace

SharingWait patience() {
    return {.tries = 5000, .sleep = [](std::chrono::milliseconds time) { SharingWait::sleepFor(time / 50); }};
}

Allowance::Allowance() : m_counter(::eventfd(0, EFD_SEMAPHORE)) {
    if (m_counter < 0)
        throw std::system_error(errno, std::generic_category(), "eventfd");
}

Allowance::~Allowance() {
    ::close(m_counter);
}

void Allowance::add(std::uint64_t calls) const {
    EXPECT_EQ(::eventfd_write(m_counter, calls), 0);
}

void Allowance::takeOne() const {
    eventfd_t taken = 0;
    if (::eventfd_read(m_counter, &taken) != 0)
        throw std::system_error(errno, std::generic_category(), "eventfd");
}

int appendCalls(share::FileSystemObject& files, const std::string& database, int rounds,
                const Allowance& allowance) {
    try {
        Engine engine(files, Engine::sleepBriefly, patience());
        for (int i = 0; i < rounds; ++i) {
            allowance.takeOne();
            const auto access = engine.openAlone(database);
            addCall(access->file(), "W" + std::to_string(i), i % 40 == 0 ? 3000 : 10);
            advanceCommitWord(access->file(), access->user());
        }
        return 0;
    } catch (const std::exception& error) {
        std::cerr << error.what() << "\n";
        return 1;
    }
}

AppendingServer::AppendingServer(const std::function<int(const Allowance&)>& work) : m_child(::fork()) {
    if (m_child != 0)
        return;
    ::prctl(PR_SET_PDEATHSIG, SIGKILL);
    ::_exit(work(m_allowance));
}

AppendingServer::~AppendingServer() {
    if (m_hasEnded)
        return;
    allow(kWithoutLimit);
    ::waitpid(m_child, nullptr, 0);
}

bool AppendingServer::hasEnded() const {
    int status = 0;
    if (!m_hasEnded && ::waitpid(m_child, &status, WNOHANG) == m_child) {
        m_hasEnded = true;
        EXPECT_EQ(status, 0);
    }
    return m_hasEnded;
}

DeleteRounds deleteWhileAppending(Engine& engine, const std::string& database,
                                  const AppendingServer& server) {
    DeleteRounds rounds;
    Observer observer;
    while (!server.hasEnded()) {
        server.allow(kCallsPerLook);
        Connection connection(engine);
        if (!see(connection, database, observer))
            continue;
        if (++rounds.looks % 3 != 0)
            continue;
        if (deleteAll(connection))
            ++rounds.deletes;
    }
    Connection connection(engine);
    EXPECT_TRUE(see(connection, database, observer));
    connection.Execute("INSERT INTO CallLog (CallID) VALUES ('last')");
    const std::vector<std::int32_t> numbers = readNumbers(connection);
    observer.see(numbers);
    rounds.lastNumber = numbers.back();
    return rounds;
}

} // namespace jet::test
