// SPDX-FileCopyrightText: 2026 The qmClient authors
// SPDX-License-Identifier: GPL-3.0-or-later
#include "tests/platform/jet/sql/AppendingServer.h"
#include "tests/platform/jet/sql/SharedDatabase.h"

#include <iostream>

namespace jet::test {
namespace {

constexpr int kUsualRounds = 2000;

TEST(AppendWhileDeleting, LosesNoCallAndShowsNoWrongCount) {
    const int rounds = roundsOr(kUsualRounds);
    SharedDatabase database(callLogDatabase(0));
    const std::string path(SharedDatabase::kPath);
    const AppendingServer server(
        [&](const Allowance& allowance) { return appendCalls(database.files, path, rounds, allowance); });
    const WatchingClient watcher(
        [&](const auto& goesOn) { return watchCalls(database.files, path, goesOn); });
    Engine engine(database.files, Engine::sleepBriefly, patience());
    const DeleteRounds done = deleteWhileAppending(engine, path, server, watcher);
    EXPECT_EQ(done.lastNumber, rounds + 1) << "every call has had its number";
    EXPECT_GT(done.deletes, 0);
    EXPECT_TRUE(database.isSound());
    std::cout << rounds << " calls appended, " << done.deletes << " deletes, " << done.looks << " looks\n";
}

} // namespace
} // namespace jet::test
