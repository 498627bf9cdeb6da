// SPDX-FileCopyrightText: 2026 The qmClient authors
// SPDX-License-Identifier: GPL-3.0-or-later
#include "tests/platform/jet/sql/AppendingServer.h"

#include "platform/basic/RuntimeError.h"
#include "platform/jet/CommitWordWriter.h"
#include "platform/jet/SoleAccess.h"

#include <sys/wait.h>
#include <unistd.h>

#include <iostream>
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

// False when the database could not be read for the moment: the server has it to itself all the time.
bool see(Connection& connection, const std::string& database, Observer& observer) {
    try {
        connection.Open("Provider=Microsoft.Jet.OLEDB.4.0;Data Source=" + database);
        observer.see(readNumbers(connection));
        return true;
    } catch (const basic::RuntimeError& error) {
        EXPECT_TRUE(error.number() == basic::kFileAlreadyOpen || error.number() == basic::kProviderFailure)
            << error.description();
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
        EXPECT_EQ(error.number(), basic::kFileAlreadyOpen) << error.description();
        connection.RollbackTrans();
        return false;
    }
}

} // namespace

SharingWait patience() {
    return {.tries = 5000, .sleep = [](std::chrono::milliseconds time) { SharingWait::sleepFor(time / 50); }};
}

int appendCalls(share::FileSystemObject& files, const std::string& database, int rounds) {
    try {
        Engine engine(files, Engine::sleepBriefly, patience());
        for (int i = 0; i < rounds; ++i) {
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

AppendingServer::AppendingServer(const std::function<int()>& work) : m_child(::fork()) {
    if (m_child == 0)
        ::_exit(work());
}

AppendingServer::~AppendingServer() {
    if (!m_hasEnded)
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
