// SPDX-FileCopyrightText: 2026 The qmClient authors
// SPDX-License-Identifier: GPL-3.0-or-later
#include "platform/jet/CommitWordWriter.h"
#include "platform/jet/SoleAccess.h"
#include "platform/jet/TableWriter.h"
#include "tests/platform/jet/sql/SharedDatabase.h"

#include <gtest/gtest.h>
#include <sys/wait.h>
#include <unistd.h>

#include <algorithm>
#include <iostream>

namespace jet::test {
namespace {

constexpr int kRounds = 1500;

SharingWait patience() {
    return {.tries = 5000, .sleep = [](std::chrono::milliseconds time) { SharingWait::sleepFor(time / 50); }};
}

// A server of its own: appends one call after the other, each under the lock, and ends.
int appendCalls(share::FileSystemObject& files) {
    try {
        Engine engine(files, Engine::sleepBriefly, patience());
        for (int i = 0; i < kRounds; ++i) {
            const auto access = engine.openAlone(std::string(SharedDatabase::kPath));
            addCall(access->file(), "W" + std::to_string(i), i % 40 == 0 ? 3000 : 10);
            advanceCommitWord(access->file(), access->user());
        }
        return 0;
    } catch (const basic::RuntimeError& error) {
        std::cerr << error.description() << "\n";
        return 1;
    }
}

template <typename Work>
pid_t inAnotherProcess(Work&& work) {
    const pid_t child = ::fork();
    if (child == 0)
        ::_exit(work());
    return child;
}

bool hasEnded(pid_t child, int& status) {
    return ::waitpid(child, &status, WNOHANG) == child;
}

std::vector<std::int32_t> readNumbers(Connection& connection) {
    std::vector<std::int32_t> numbers;
    const auto records = connection.Execute("SELECT ID FROM CallLog ORDER BY ID");
    for (; !records->eof(); records->MoveNext())
        numbers.push_back(std::get<std::int32_t>(records->Field(0)));
    return numbers;
}

// Each delete takes the calls that are there, so what is left at any time is one run of numbers without a gap
// that ends with the newest; a lost call would be a gap, one that came back a step backwards.
class Observer {
public:
    void see(const std::vector<std::int32_t>& numbers) {
        ++m_looks;
        if (numbers.empty())
            return;
        EXPECT_EQ(static_cast<std::size_t>(numbers.back() - numbers.front()) + 1, numbers.size());
        EXPECT_GE(numbers.front(), m_first);
        EXPECT_GE(numbers.back(), m_last);
        m_first = numbers.front();
        m_last = numbers.back();
    }
    int looks() const { return m_looks; }
    std::int32_t last() const { return m_last; }

private:
    std::int32_t m_first = 1;
    std::int32_t m_last = 0;
    int m_looks = 0;
};

TEST(AppendWhileDeleting, LosesNoCallAndShowsNoWrongCount) {
    SharedDatabase database(callLogDatabase(0));
    const pid_t writer = inAnotherProcess([&] { return appendCalls(database.files); });
    ASSERT_GT(writer, 0);
    Engine engine(database.files, Engine::sleepBriefly, patience());
    Connection connection(engine);
    connection.Open(SharedDatabase::kConnection);
    Observer observer;
    int deletes = 0;
    int status = 0;
    while (!hasEnded(writer, status)) {
        observer.see(readNumbers(connection));
        if (observer.looks() % 3 == 0) {
            connection.BeginTrans();
            connection.Execute("DELETE FROM CallLog");
            connection.CommitTrans();
            ++deletes;
        }
    }
    EXPECT_EQ(status, 0);
    observer.see(readNumbers(connection));
    EXPECT_LE(observer.last(), kRounds);
    EXPECT_TRUE(database.isSound());
    connection.Execute("INSERT INTO CallLog (CallID) VALUES ('last')");
    EXPECT_EQ(readNumbers(connection).back(), kRounds + 1) << "every call has had its number";
    EXPECT_GT(deletes, 10);
    std::cout << kRounds << " calls appended, " << deletes << " deletes, " << observer.looks() << " looks\n";
}

} // namespace
} // namespace jet::test
