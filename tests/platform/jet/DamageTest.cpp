// SPDX-FileCopyrightText: 2026 The qmClient authors
// SPDX-License-Identifier: GPL-3.0-or-later
// Whatever happens to the bytes of a database: reading ends, in success or in an error of the provider.

#include "platform/jet/Catalog.h"
#include "platform/jet/Checker.h"
#include "platform/jet/Database.h"
#include "platform/jet/DatabaseBuilder.h"
#include "platform/jet/PageSnapshot.h"
#include "platform/jet/TableDefinitionReader.h"
#include "platform/jet/TablePages.h"
#include "platform/jet/TableScan.h"
#include "platform/jet/TableWriter.h"
#include "platform/jet/ValueDecoder.h"
#include "platform/share/MemoryFile.h"
#include "tests/platform/jet/FailureOf.h"
#include "tests/platform/jet/WrittenDatabase.h"
#include "tools/demo/CallLogTable.h"

#include <gmock/gmock.h>

#include <random>

namespace jet {
namespace {

using test::kCreated;

std::vector<std::byte> callLog(int rows) {
    share::MemoryFile file{{}};
    createDatabase(file, kCreated);
    createTable(file, demo::callLogTable(), kCreated);
    TableWriter writer(file, "CallLog");
    for (int i = 0; i < rows; ++i) {
        const std::string number = std::to_string(i);
        // Notes of all three kinds: in the row, in one row elsewhere, in a chain.
        const std::string note(static_cast<std::size_t>(i % 3 == 0 ? 20 : i % 3 == 1 ? 700 : 2200), 'n');
        writer.insert(std::vector<basic::Variant>{basic::Null{}, "call" + number, kCreated, "+49" + number,
                                                  "caller \xE2\x82\xAC" + number, std::int32_t{i}, note});
    }
    writer.flush();
    return file.bytes();
}

std::size_t readThrough(PageSource& source, const TableDefinition& table, const std::string& name) {
    TableScan scan(source, table, name);
    ValueDecoder decoder(source);
    std::size_t rows = 0;
    for (; scan.next(); ++rows) {
        for (const Column& column : table.columns)
            decoder.value(scan.row(), column);
    }
    return rows;
}

// Count, every table from the file and from a snapshot, then the check.
std::string readEverything(const std::vector<std::byte>& bytes) {
    return test::failureOf([&] {
        Database database(std::make_unique<share::MemoryFile>(bytes));
        database.count("CallLog");
        for (const CatalogEntry& entry : Catalog(database.pages()).tables()) {
            const TableDefinition table =
                TableDefinitionReader(database.pages()).read(entry.definitionPage(), entry.name);
            PageSnapshot snapshot(database.pages(), tablePages(database.pages(), table, entry.name));
            EXPECT_EQ(readThrough(snapshot, table, entry.name),
                      readThrough(database.pages(), table, entry.name));
        }
        Checker(database.pages()).run();
    });
}

// Every other outcome than these two is another kind of error, or none at all.
const auto kAnyEnd = testing::AnyOf("(no error)", testing::HasSubstr("(memory), "),
                                    testing::HasSubstr("(memory): "), "(another error number)");

TEST(Damage, SoundDatabaseReadsWithoutError) {
    EXPECT_EQ(readEverything(callLog(16)), "(no error)");
}

TEST(Damage, FlippedBitsEndInSuccessOrAnError) {
    const std::vector<std::byte> sound = callLog(16);
    std::mt19937 random(20040607);
    std::size_t failures = 0;
    for (int round = 0; round < 100; ++round) {
        std::vector<std::byte> bytes = sound;
        for (int flips = 0; flips < 16; ++flips)
            bytes[random() % bytes.size()] ^= static_cast<std::byte>(1U << random() % 8);
        const std::string outcome = readEverything(bytes);
        ASSERT_THAT(outcome, kAnyEnd) << "round " << round;
        failures += outcome != "(no error)" ? 1U : 0U;
    }
    EXPECT_GT(failures, 40U);
}

// Flips spread over all pages rarely meet a pointer; these meet nothing else.
TEST(Damage, WildValuesInHeadersEndInSuccessOrAnError) {
    const std::vector<std::byte> sound = callLog(16);
    const std::size_t pages = sound.size() / format::page::kSize;
    std::mt19937 random(5);
    for (int round = 0; round < 100; ++round) {
        std::vector<std::byte> bytes = sound;
        const std::size_t at = random() % pages * format::page::kSize + random() % 96;
        bytes[at] = static_cast<std::byte>(random());
        bytes[at + 1] = static_cast<std::byte>(round % 2 == 0 ? 0xFF : 0x00);
        ASSERT_THAT(readEverything(bytes), kAnyEnd) << "round " << round << ", offset " << at;
    }
}

TEST(Damage, TruncatedDatabaseEndsInAnError) {
    const std::vector<std::byte> sound = callLog(16);
    std::mt19937 random(7);
    for (int round = 0; round < 100; ++round) {
        std::vector<std::byte> bytes = sound;
        bytes.resize(random() % bytes.size());
        ASSERT_THAT(readEverything(bytes), testing::AllOf(kAnyEnd, testing::Ne("(no error)")))
            << bytes.size() << " bytes";
    }
}

TEST(Damage, PagesInEachOthersPlaceEndInSuccessOrAnError) {
    const std::vector<std::byte> sound = callLog(16);
    const std::size_t pages = sound.size() / format::page::kSize;
    std::mt19937 random(11);
    for (int round = 0; round < 100; ++round) {
        std::vector<std::byte> bytes = sound;
        const auto page = [&] {
            return bytes.begin() + static_cast<std::ptrdiff_t>(random() % pages * format::page::kSize);
        };
        const auto left = page();
        const auto right = page();
        if (left != right)
            std::swap_ranges(left, left + format::page::kSize, right);
        ASSERT_THAT(readEverything(bytes), kAnyEnd) << "round " << round;
    }
}

} // namespace
} // namespace jet
