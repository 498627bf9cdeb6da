// SPDX-FileCopyrightText: 2026 The qmClient authors
// SPDX-License-Identifier: GPL-3.0-or-later
#include "platform/basic/RuntimeError.h"
#include "platform/jet/TableWriter.h"
#include "tests/platform/basic/ErrorOf.h"
#include "tests/platform/jet/CrashStates.h"
#include "tests/platform/jet/EmptyingScenario.h"
#include "tests/platform/jet/StoredDefinition.h"
#include "tests/platform/jet/WrittenDatabase.h"

#include <gtest/gtest.h>

#include <iostream>
#include <string_view>
#include <unordered_set>

namespace jet {
namespace {

using namespace test;

TableDefinition logOf(const FileImage& image) {
    share::MemoryFile file(image);
    return definitionOf(file, kLog);
}

// Every pointer that the switch changes lies in the first sector of the definition's page or on another page.
bool switchesInOneSector(const TableDefinition& log) {
    return std::ranges::all_of(log.realIndexes, [](const RealIndex& index) {
        const std::size_t end = index.definitionOffset + format::realIndex::kRoot + 4;
        return end <= kSector || index.definitionOffset >= format::page::kSize;
    });
}

bool isSound(const FileImage& image) {
    share::MemoryFile file(image);
    return basic::errorOf([&] { checkDatabase(file); }) == 0;
}

class CrashWhileEmptying {
public:
    explicit CrashWhileEmptying(FileImage before)
        : m_before(std::move(before)), m_log(logOf(m_before)), m_rows(rowsIn(m_before)),
          m_others(othersIn(m_before)) {}

    CrashCounts run() {
        RecordingFile file(m_before);
        emptyLog(file);
        return forEachCrashState(m_before, file.groups, [this](const CrashState& state) { check(state); });
    }

    std::size_t fullStates = 0;
    std::size_t emptyStates = 0;
    std::size_t brokenStates = 0; // that a check names

private:
    static std::vector<Values> rowsIn(const FileImage& image) {
        share::MemoryFile file(image);
        return readRows(file, kLog);
    }
    static std::vector<Values> othersIn(const FileImage& image) {
        share::MemoryFile file(image);
        return readRows(file, "MailboxInfo");
    }

    void check(const CrashState& state) {
        // Most torn writes leave the same bytes: only few sectors of a page differ from what was there.
        const std::string_view bytes(reinterpret_cast<const char*>(state.image.data()), state.image.size());
        if (!m_seen.insert(std::hash<std::string_view>()(bytes)).second)
            return;
        SCOPED_TRACE(state.what);
        const std::vector<Values> rows = rowsIn(state.image);
        ++(rows.empty() ? emptyStates : fullStates);
        EXPECT_TRUE(rows.empty() || rows == m_rows);
        EXPECT_EQ(othersIn(state.image), m_others);
        if (!isSound(state.image)) {
            ++brokenStates;
            EXPECT_TRUE(isTornSwitch(state)) << "only a torn switch may be seen";
        } else {
            checkInsert(state.image);
        }
        checkDelete(state.image);
    }

    bool isTornSwitch(const CrashState& state) const {
        return state.tornWrite != nullptr &&
               state.tornWrite->offset == std::uint64_t{m_log.page()} * format::page::kSize &&
               !switchesInOneSector(m_log);
    }

    void checkInsert(const FileImage& image) const {
        share::MemoryFile file(image);
        const std::size_t rows = readRows(file, kLog).size();
        addCall(file, "after the crash", 5000);
        EXPECT_EQ(readRows(file, kLog).size(), rows + 1);
        EXPECT_EQ(basic::errorOf([&] { checkDatabase(file); }), 0);
    }

    void checkDelete(const FileImage& image) const {
        share::MemoryFile file(image);
        emptyLog(file);
        EXPECT_TRUE(readRows(file, kLog).empty());
        EXPECT_EQ(storedCount(file, kLog), 0U);
        EXPECT_EQ(readRows(file, "MailboxInfo"), m_others);
        EXPECT_EQ(basic::errorOf([&] { checkDatabase(file); }), 0);
        checkInsert(file.bytes());
    }

    FileImage m_before;
    TableDefinition m_log;
    std::vector<Values> m_rows;
    std::vector<Values> m_others;
    std::unordered_set<std::size_t> m_seen; // hashes
};

void expectAllOrNothing(FileImage before, bool inOneSector) {
    ASSERT_EQ(switchesInOneSector(logOf(before)), inOneSector);
    CrashWhileEmptying crash(std::move(before));
    const CrashCounts counts = crash.run();
    EXPECT_GT(crash.fullStates, 0U);
    EXPECT_GT(crash.emptyStates, 0U);
    EXPECT_EQ(crash.brokenStates == 0, inOneSector);
    std::cout << "crash states: " << counts.prefixes << " prefixes, " << counts.reorderings
              << " reorderings, " << counts.torn << " torn writes; of different bytes: " << crash.fullStates
              << " full, " << crash.emptyStates << " empty, " << crash.brokenStates << " named by a check\n";
}

TEST(CrashWhileEmptying, LeavesAllRowsOrNone) {
    expectAllOrNothing(callLogDatabase(12), true);
}

TEST(CrashWhileEmptying, LeavesAllRowsOrNoneWhereFreePagesAreTaken) {
    expectAllOrNothing(refilledDatabase(12), true);
}

TEST(CrashWhileEmptying, LeavesAllRowsOrNoneWhenIndexesAreOnAnotherPage) {
    ASSERT_EQ(logOf(twoPageDatabase(3)).pages.size(), 2U);
    expectAllOrNothing(twoPageDatabase(9), true);
}

TEST(CrashWhileEmptying, TornSwitchOverSeveralSectorsIsNamedAndCompletedByTheNextDelete) {
    expectAllOrNothing(wideDatabase(9), false);
}

TEST(CrashWhileEmptying, LeavesAllRowsOrNoneWhenTheMapOfFreePagesIsFull) {
    expectAllOrNothing(fullMapDatabase(), true);
}

} // namespace
} // namespace jet
