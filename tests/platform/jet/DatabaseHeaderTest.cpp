// SPDX-FileCopyrightText: 2026 The qmClient authors
// SPDX-License-Identifier: GPL-3.0-or-later
#include "platform/jet/DatabaseHeader.h"

#include "platform/jet/Rc4.h"
#include "tests/platform/jet/FailureOf.h"
#include "tests/platform/jet/Images.h"
#include "tests/platform/jet/MemoryFile.h"

#include <gmock/gmock.h>

#include <bit>

namespace jet {
namespace {

using testing::HasSubstr;

test::Image headerPage() {
    test::Image image(1);
    image.putHeader();
    return image;
}

std::string complaintAbout(const test::Bytes& bytes) {
    test::MemoryFile file(bytes);
    return test::failureOf([&] { DatabaseHeader::read(file); });
}

TEST(DatabaseHeader, ReadsTheMaskedRegion) {
    test::Image image = headerPage();
    test::Bytes region(format::header::kMaskedSize);
    const auto set = [&region](std::size_t offset, const test::Bytes& what) {
        std::ranges::copy(what,
                          region.begin() + static_cast<std::ptrdiff_t>(offset - format::header::kMasked));
    };
    set(format::header::kCodePage, test::u16(1252));
    set(format::header::kDatabaseKey, test::u32(0x12345678));
    set(format::header::kSortOrder, test::u16(0x0407));
    set(format::header::kCreated, test::fromHex("00 00 00 00 20 AB E4 40")); // 42329.0
    applyRc4(format::header::kMaskKey, region);
    image.put(0, format::header::kMasked, region);
    test::MemoryFile file(image.bytes);
    const DatabaseHeader header = DatabaseHeader::read(file);
    EXPECT_EQ(header.codePage, 1252);
    EXPECT_EQ(header.databaseKey, 0x12345678U);
    EXPECT_EQ(header.sortOrder, 0x0407);
    EXPECT_EQ(header.created, 42329.0);
    EXPECT_EQ(header.creationStamp, std::bit_cast<std::uint64_t>(42329.0));
    EXPECT_EQ(header.commitWords.words[255], format::commitWords::kInitial);
}

TEST(DatabaseHeader, RefusesJet3ByName) {
    test::Image image = headerPage();
    image.putU8(0, format::header::kVersion, 0);
    EXPECT_THAT(complaintAbout(image.bytes), HasSubstr("(Jet 3) are not supported"));
    image.bytes.resize(2048); // its pages are smaller
    EXPECT_THAT(complaintAbout(image.bytes), HasSubstr("(Jet 3) are not supported"));
}

TEST(DatabaseHeader, RefusesAceAndMoneyByName) {
    test::Image image = headerPage();
    image.putU8(0, format::header::kVersion, 2);
    EXPECT_THAT(complaintAbout(image.bytes), HasSubstr("version 2 are not supported"));
    image.put(0, format::header::kSignature,
              test::fromHex("53 74 61 6E 64 61 72 64 20 41 43 45 20 44 42 00"));
    EXPECT_THAT(complaintAbout(image.bytes), HasSubstr("(ACE) are not supported"));
    image.put(0, format::header::kSignature,
              test::fromHex("4D 53 49 53 41 4D 20 44 61 74 61 62 61 73 65 00"));
    EXPECT_THAT(complaintAbout(image.bytes), HasSubstr("(MSISAM) are not supported"));
}

TEST(DatabaseHeader, RefusesWhatIsNoDatabase) {
    EXPECT_THAT(complaintAbout({}), HasSubstr("the file is empty"));
    EXPECT_THAT(complaintAbout(test::Bytes(3)), HasSubstr("this is not a database"));
    EXPECT_THAT(complaintAbout(test::Bytes(4096)), HasSubstr("this is not a database"));
    test::Image image = headerPage();
    image.putU8(0, 0, 1);
    EXPECT_THAT(complaintAbout(image.bytes), HasSubstr("this is not a database"));
}

TEST(DatabaseHeader, RefusesAHeaderCutShort) {
    for (const std::size_t size : {0x15U, 0x98U, 0xE00U, 4095U}) {
        test::Bytes bytes = headerPage().bytes;
        bytes.resize(size);
        EXPECT_THAT(complaintAbout(bytes),
                    HasSubstr("cut short: 4096 bytes expected, " + std::to_string(size) + " there"));
    }
}

} // namespace
} // namespace jet
