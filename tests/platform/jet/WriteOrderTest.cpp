// SPDX-FileCopyrightText: 2026 The qmClient authors
// SPDX-License-Identifier: GPL-3.0-or-later
#include "platform/jet/TableWriter.h"
#include "platform/share/MemoryFile.h"
#include "tests/platform/basic/ErrorOf.h"
#include "tests/platform/jet/StoredDefinition.h"
#include "tests/platform/jet/WrittenDatabase.h"
#include "tools/demo/CallLogTable.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <thread>

namespace jet {
namespace {

using namespace test;
using basic::Null;

// Passes everything on to another file and fails at one write.
class FailingFile final : public share::File {
public:
    FailingFile(share::File& file, std::size_t failAt) : m_file(file), m_failAt(failAt) {}

    const std::string& name() const override { return m_file.name(); }
    std::uint64_t size() override { return m_file.size(); }
    std::size_t read(std::uint64_t offset, std::span<std::byte> into) override {
        return m_file.read(offset, into);
    }
    void write(std::uint64_t offset, std::span<const std::byte> from) override {
        if (pages.size() + 1 == m_failAt)
            throw basic::RuntimeError(basic::kDiskFull, "no room");
        EXPECT_EQ(from.size(), format::page::kSize);
        EXPECT_EQ(offset % format::page::kSize, 0U);
        pages.push_back(static_cast<PageNumber>(offset / format::page::kSize));
        m_file.write(offset, from);
    }
    void sync() override { ++syncs; }
    bool lock(std::uint64_t, std::uint64_t, share::LockKind) override { return true; }
    void unlock(std::uint64_t, std::uint64_t) override {}

    std::vector<PageNumber> pages; // written, in order
    int syncs = 0;

private:
    share::File& m_file;
    std::size_t m_failAt;
};

Values call(int number, std::size_t memo) {
    return {Null{},
            "K" + std::to_string(number * 37 % 1009),
            basic::Date{45000},
            Null{},
            Null{},
            std::int32_t{0},
            std::string(memo, 'm')};
}

constexpr int kOldRows = 390;

std::vector<std::byte> filledDatabase() {
    share::MemoryFile file{{}};
    createDatabase(file, kCreated);
    createTable(file, demo::callLogTable(), kCreated);
    TableWriter writer(file, "CallLog");
    for (int i = 0; i < kOldRows; ++i) // the second index's next entries split a leaf, the root with it
        writer.insert(call(i, i % 15 == 0 ? 4200 : 10));
    writer.flush();
    return file.bytes();
}

void appendRows(share::File& file) {
    TableWriter writer(file, "CallLog");
    for (int i = 400; i < 440; ++i)
        writer.insert(call(i, i % 15 == 0 ? 4200 : 10));
    writer.flush();
}

// The autonumber goes ahead of everything, the row count comes after everything.
TEST(WriteOrder, DefinitionComesFirstAndLastAndEveryOtherPageOnce) {
    share::MemoryFile memory{filledDatabase()};
    FailingFile file(memory, 0);
    appendRows(file);
    ASSERT_GT(file.pages.size(), 9U);
    EXPECT_EQ(file.pages.front(), definitionPageOf(memory, "CallLog"));
    EXPECT_EQ(file.pages.back(), definitionPageOf(memory, "CallLog"));
    std::vector<PageNumber> sorted(file.pages.begin() + 1, file.pages.end());
    std::ranges::sort(sorted);
    EXPECT_TRUE(std::ranges::adjacent_find(sorted) == sorted.end());
    EXPECT_EQ(file.syncs, 3) << "after the autonumber, after the new pages, at the end";
}

TEST(WriteOrder, NewPagesComeBeforeWhatRefersToThem) {
    share::MemoryFile memory{filledDatabase()};
    const auto oldPages = static_cast<PageNumber>(memory.size() / format::page::kSize);
    FailingFile file(memory, 0);
    appendRows(file);
    const auto isOld = [=](PageNumber page) { return page < oldPages; };
    const auto firstOld = std::find_if(file.pages.begin() + 1, file.pages.end(), isOld);
    EXPECT_GT(firstOld, file.pages.begin() + 1);
    EXPECT_EQ(*firstOld, format::usageMap::kGlobalPage);
    EXPECT_TRUE(std::all_of(firstOld, file.pages.end(), isOld));
}

// Rows may be found after a crash that no count and no index knows; their numbers are taken all the same.
TEST(WriteOrder, NoNumberIsHandedOutTwiceWhateverWriteFails) {
    const std::vector<std::byte> before = filledDatabase();
    share::MemoryFile counted{before};
    FailingFile counter(counted, 0);
    appendRows(counter);
    std::size_t found = 0;
    for (std::size_t failAt = 1; failAt <= counter.pages.size(); ++failAt) {
        share::MemoryFile memory{before};
        FailingFile file(memory, failAt);
        EXPECT_EQ(basic::errorOf([&] { appendRows(file); }), basic::kDiskFull);
        std::int32_t highest = 0;
        for (const Values& row : readRows(memory, "CallLog"))
            highest = std::max(highest, std::get<std::int32_t>(row[0]));
        found += highest > kOldRows ? 1U : 0U;
        TableWriter next(memory, "CallLog");
        EXPECT_GT(next.insert(call(900, 10)), highest) << failAt;
    }
    EXPECT_GT(found, 0U) << "some failures leave new rows behind";
}

// Whatever write fails: the old rows are all there, new ones are whole, and the count is the old one.
TEST(WriteOrder, FailureAtAnyWriteLeavesEveryOldRow) {
    const std::vector<std::byte> before = filledDatabase();
    share::MemoryFile counted{before};
    const std::vector<Values> oldRows = readRows(counted, "CallLog");
    FailingFile counter(counted, 0);
    appendRows(counter);
    ASSERT_EQ(readRows(counted, "CallLog").size(), kOldRows + 40U);
    for (std::size_t failAt = 1; failAt <= counter.pages.size(); ++failAt) {
        share::MemoryFile memory{before};
        FailingFile file(memory, failAt);
        EXPECT_EQ(basic::errorOf([&] { appendRows(file); }), basic::kDiskFull);
        ASSERT_EQ(storedCount(memory, "CallLog"), std::uint32_t{kOldRows}) << failAt;
        std::vector<Values> rows = readRows(memory, "CallLog");
        ASSERT_LE(rows.size(), kOldRows + 40U) << failAt;
        std::erase_if(rows, [](const Values& row) { return std::get<std::int32_t>(row[0]) > kOldRows; });
        ASSERT_EQ(rows, oldRows) << failAt;
    }
}

TEST(WriteOrder, WriterRefusesEverythingAfterAFailure) {
    share::MemoryFile memory{filledDatabase()};
    FailingFile file(memory, 3);
    TableWriter writer(file, "CallLog");
    writer.insert(call(400, 10));
    EXPECT_EQ(basic::errorOf([&] { writer.flush(); }), basic::kDiskFull);
    EXPECT_EQ(basic::errorOf([&] { writer.insert(call(401, 10)); }), basic::kProviderFailure);
    EXPECT_EQ(basic::errorOf([&] { writer.flush(); }), basic::kProviderFailure);
}

TEST(WriteOrder, FailureWhileATableIsMadeLeavesTheCatalogAsItWas) {
    share::MemoryFile empty{{}};
    createDatabase(empty, kCreated);
    const std::vector<std::byte> before = empty.bytes();
    FailingFile counter(empty, 0);
    createTable(counter, demo::callLogTable(), kCreated);
    const std::size_t writes = counter.pages.size();
    for (std::size_t failAt = 1; failAt <= writes; ++failAt) {
        share::MemoryFile memory{before};
        FailingFile file(memory, failAt);
        ASSERT_EQ(basic::errorOf([&] { createTable(file, demo::callLogTable(), kCreated); }),
                  basic::kDiskFull);
        PageReader pages(memory, 0);
        const std::size_t tables = Catalog(pages).userTables().size();
        ASSERT_TRUE(tables == 0 || readRows(memory, "CallLog").empty()) << failAt;
    }
}

// A reader with a file of its own, while rows are appended: counts only rise, and what is counted is there.
TEST(WriteOrder, ReaderBesideAWriterNeverSeesATornCount) {
    constexpr int kRounds = 50;
    WrittenDatabase database;
    database.createTable(demo::callLogTable());
    std::jthread writer([&] {
        const auto file = share::LocalFile::open(database.path(), share::OpenMode::ReadWrite);
        for (int i = 0; i < kRounds; ++i) {
            TableWriter rows(*file, "CallLog");
            rows.insert(call(i, i % 4 == 0 ? 6000 : 20));
            rows.flush();
        }
    });
    std::uint32_t last = 0;
    while (last < kRounds) {
        const auto file = share::LocalFile::open(database.path(), share::OpenMode::Read);
        std::uint32_t count = 0;
        std::size_t rows = 0;
        // An error is what a reader may meet when the file grows under it; a wrong number is not.
        if (basic::errorOf([&] {
                count = storedCount(*file, "CallLog");
                rows = readRows(*file, "CallLog").size();
            }) != 0)
            continue;
        ASSERT_GE(count, last);
        ASSERT_GE(rows, count);
        ASSERT_LE(rows, static_cast<std::size_t>(kRounds));
        last = count;
    }
}

} // namespace
} // namespace jet
