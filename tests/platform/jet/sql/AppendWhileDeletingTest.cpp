// SPDX-FileCopyrightText: 2026 The qmClient authors
// SPDX-License-Identifier: GPL-3.0-or-later
#include "tests/platform/jet/sql/AppendingServer.h"
#include "tests/platform/jet/sql/SharedDatabase.h"

#include <iostream>

namespace jet::test {
namespace {

constexpr int kRounds = 1000;

TEST(AppendWhileDeleting, LosesNoCallAndShowsNoWrongCount) {
    SharedDatabase database(callLogDatabase(0));
    const std::string path(SharedDatabase::kPath);
    const AppendingServer server(
        [&](const Allowance& allowance) { return appendCalls(database.files, path, kRounds, allowance); });
    Engine engine(database.files, Engine::sleepBriefly, patience());
    const DeleteRounds rounds = deleteWhileAppending(engine, path, server);
    EXPECT_EQ(rounds.lastNumber, kRounds + 1) << "every call has had its number";
    EXPECT_GT(rounds.deletes, 0);
    EXPECT_TRUE(database.isSound());
    std::cout << kRounds << " calls appended, " << rounds.deletes << " deletes, " << rounds.looks
              << " looks\n";
}

} // namespace
} // namespace jet::test
