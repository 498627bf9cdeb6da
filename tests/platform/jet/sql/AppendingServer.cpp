// SPDX-FileCopyrightText: 2026 The qmClient authors
// SPDX-License-Identifier: GPL-3.0-or-later
#include "tests/platform/jet/sql/AppendingServer.h"

#include "platform/basic/RuntimeError.h"
#include "platform/jet/CommitWordWriter.h"
#include "platform/jet/SoleAccess.h"

#include <fcntl.h>
#include <sys/eventfd.h>
#include <sys/prctl.h>
#include <sys/wait.h>
#include <unistd.h>

#include <array>
#include <csignal>
#include <cstdlib>
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

// What a client may meet while another program keeps the database to itself, or writes all the time.
bool meansBusy(const basic::RuntimeError& error) {
    return error.number() == basic::kFileAlreadyOpen || error.number() == basic::kProviderFailure;
}

// Counts between two readings. Unless somebody deleted meanwhile, the count lies between their sizes, but for
// a row that is just being added.
class CountedReading {
public:
    bool see(Connection& connection, const std::string& database, Observer& observer) {
        try {
            connection.Open("Provider=Microsoft.Jet.OLEDB.4.0;Data Source=" + database);
            const std::vector<std::int32_t> before = readNumbers(connection);
            const auto counted =
                std::get<std::int32_t>(connection.Execute("SELECT COUNT(*) FROM CallLog")->Field(0));
            const std::vector<std::int32_t> after = readNumbers(connection);
            observer.see(before);
            observer.see(after);
            if (!before.empty() && !after.empty() && before.front() == after.front())
                expectBetween(before.size(), static_cast<std::size_t>(counted), after.size());
            return true;
        } catch (const basic::RuntimeError& error) {
            EXPECT_TRUE(meansBusy(error)) << error.description();
            return false;
        }
    }
    int compared() const noexcept { return m_compared; }

private:
    // The server adds one row at a time, and a reader that takes no lock may see it before it is counted.
    void expectBetween(std::size_t least, std::size_t counted, std::size_t most) {
        EXPECT_LE(least, counted + kBeingAdded);
        EXPECT_LE(counted, most);
        ++m_compared;
    }

    static constexpr std::size_t kBeingAdded = 1;
    int m_compared = 0;
};

constexpr std::uint64_t kCallsPerLook = 12;
constexpr std::uint64_t kWithoutLimit = 1'000'000;

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

int roundsOr(int usual) {
    const char* wanted = std::getenv("QM_ROUNDS");
    return wanted == nullptr ? usual : std::stoi(wanted);
}

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

WatchingClient::WatchingClient(const std::function<int(const std::function<bool()>&)>& work) {
    std::array<int, 2> ends{};
    if (::pipe2(ends.data(), O_CLOEXEC) != 0)
        throw std::system_error(errno, std::generic_category(), "pipe");
    m_child = ::fork();
    if (m_child == 0) {
        ::prctl(PR_SET_PDEATHSIG, SIGKILL);
        ::close(ends[1]);
        ::_exit(work([&] {
            char request = 0;
            return ::read(ends[0], &request, 1) == 1;
        }));
    }
    ::close(ends[0]);
    m_requests = ends[1];
}

WatchingClient::~WatchingClient() {
    ::close(m_requests);
    int status = -1;
    ::waitpid(m_child, &status, 0);
    EXPECT_EQ(status, 0) << "what the watching client saw";
}

void WatchingClient::look() const {
    EXPECT_EQ(::write(m_requests, "l", 1), 1);
}

int watchCalls(share::FileSystemObject& files, const std::string& database,
               const std::function<bool()>& goesOn) {
    try {
        Engine engine(files);
        Observer observer;
        CountedReading reading;
        int looks = 0;
        while (goesOn()) {
            Connection connection(engine);
            looks += reading.see(connection, database, observer) ? 1 : 0;
        }
        std::cout << "another client: " << looks << " looks, " << reading.compared()
                  << " counts between two of them\n"
                  << std::flush;
        return ::testing::Test::HasFailure() || reading.compared() == 0 ? 1 : 0;
    } catch (const std::exception& error) {
        std::cerr << error.what() << "\n";
        return 1;
    }
}

DeleteRounds deleteWhileAppending(Engine& engine, const std::string& database, const AppendingServer& server,
                                  const WatchingClient& watcher) {
    DeleteRounds rounds;
    Observer observer;
    while (!server.hasEnded()) {
        server.allow(kCallsPerLook);
        watcher.look();
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
