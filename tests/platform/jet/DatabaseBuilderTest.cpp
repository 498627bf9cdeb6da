// SPDX-FileCopyrightText: 2026 The qmClient authors
// SPDX-License-Identifier: GPL-3.0-or-later
#include "platform/basic/RuntimeError.h"
#include "platform/jet/Catalog.h"
#include "platform/jet/DatabaseHeader.h"
#include "platform/jet/PageReader.h"
#include "platform/jet/TableDefinitionReader.h"
#include "platform/share/MemoryFile.h"
#include "tests/platform/jet/WrittenDatabase.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <cstring>

namespace jet {
namespace {

using namespace test;
using testing::HasSubstr;

std::string hex(const std::vector<std::byte>& bytes, std::size_t at, std::size_t count) {
    static constexpr char kDigits[] = "0123456789ABCDEF";
    std::string text;
    for (std::size_t i = at; i < at + count; ++i) {
        text += kDigits[std::to_integer<unsigned>(bytes.at(i)) >> 4U];
        text += kDigits[std::to_integer<unsigned>(bytes.at(i)) & 15U];
    }
    return text;
}

class NewDatabase : public testing::Test {
protected:
    NewDatabase() { createDatabase(m_file, kCreated); }
    std::string bytes(std::size_t page, std::size_t at, std::size_t count) const {
        return hex(m_file.bytes(), page * format::page::kSize + at, count);
    }
    share::MemoryFile m_file{{}};
};

TEST_F(NewDatabase, HasSixteenPages) {
    EXPECT_EQ(m_file.size(), 16U * format::page::kSize);
}

TEST_F(NewDatabase, IsFreeOfInconsistencies) {
    EXPECT_NO_THROW(checkDatabase(m_file));
}

TEST_F(NewDatabase, HeaderReadsBack) {
    const DatabaseHeader header = DatabaseHeader::read(m_file);
    EXPECT_EQ(header.databaseKey, 0U);
    EXPECT_EQ(header.codePage, 1252);
    EXPECT_EQ(header.sortOrder, 0x0409);
    EXPECT_EQ(header.sortVersion, 0);
    for (const std::uint16_t word : header.commitWords.words)
        ASSERT_EQ(word, 0x0100);
}

TEST_F(NewDatabase, HeaderIsMaskedAsTheEngineMasksIt) {
    EXPECT_EQ(bytes(0, 0, 0x18), "000100005374616E64617264204A657420444200"
                                 "01000000");
    // The stream itself where the plain bytes are zero.
    EXPECT_EQ(bytes(0, 0x18, 4), "B56E0362");
    EXPECT_EQ(bytes(0, 0x94, 4), "E92D62D4");
    EXPECT_EQ(bytes(0, 0x98, 8), "54060000342E3000");
}

TEST_F(NewDatabase, FreePagesBeginBehindTheLast) {
    EXPECT_EQ(bytes(1, 0, 18), "0101640F01000000000000000200BB0F760F");
    EXPECT_EQ(bytes(1, 0xFBB, 10), "0000000000"
                                   "0000FFFFFF");
}

TEST_F(NewDatabase, CatalogRowIsTheOneTheEngineWrites) {
    // Column count, Id, ParentId, Type; behind the dates Flags, Name and Owner; then where all end.
    const std::size_t start = format::page::kSize - 0x4B;
    EXPECT_EQ(bytes(14, start, 12), "11000100000F0000000F0300");
    EXPECT_EQ(bytes(14, start + 28, 47), "00000080"
                                         "5400610062006C0065007300"
                                         "A731"
                                         "2E002E002E002E002E002E002E002E002E002E00"
                                         "2C002000"
                                         "0B00"
                                         "FF0000");
}

TEST_F(NewDatabase, IndexEntriesOfTheCatalogAreThoseOfTheEngine) {
    EXPECT_EQ(bytes(7, 0, 1), "04");
    EXPECT_EQ(bytes(7, 24, 2), "0400"); // the parents' numbers share four bytes with their flag
    const std::string entries = bytes(7, 480, 400);
    EXPECT_THAT(entries, testing::StartsWith("7F8F0000007F4F4A6D4A4C4A6B516B010000000E01"));
    EXPECT_THAT(entries, HasSubstr("007F6D4A4C5E516B010000000E00")); // Tables, page 14, row 0
}

} // namespace
} // namespace jet
