// SPDX-FileCopyrightText: 2026 The qmClient authors
// SPDX-License-Identifier: GPL-3.0-or-later
#include "platform/share/smb/FolderPage.h"

#include "platform/share/smb/Messages.h"
#include "tests/platform/share/ExpectError.h"

#include <gtest/gtest.h>

namespace share::smb {
namespace {

TEST(FolderPage, BringsNamesAndKindsOver) {
    std::size_t taken = 0;
    const std::vector<FolderEntry> sent{{true, "7"}, {false, "qmLog.mdb"}, {false, "\xC3\xA4"}};
    const std::vector<FolderEntry> read = decodeFolderPage(encodeFolderPage(sent, taken));
    EXPECT_EQ(taken, 3U);
    ASSERT_EQ(read.size(), 3U);
    EXPECT_TRUE(read[0].isFolder);
    EXPECT_FALSE(read[1].isFolder);
    EXPECT_EQ(read[2].name, "\xC3\xA4");
}

TEST(FolderPage, TakesNoMoreThanAPacketHolds) {
    const std::vector<FolderEntry> many(200, {true, std::string(kMaximumNameBytes, 'n')});
    std::size_t taken = 0;
    const std::vector<std::byte> page = encodeFolderPage(many, taken);
    EXPECT_LE(page.size(), kMaximumDataBytes);
    EXPECT_EQ(taken, 63U);
    EXPECT_EQ(decodeFolderPage(page).size(), taken);
}

TEST(FolderPage, RefusesWhatIsCutShortOrNoEntry) {
    std::size_t taken = 0;
    std::vector<std::byte> page = encodeFolderPage(std::vector<FolderEntry>{{false, "name"}}, taken);
    for (std::size_t size = 1; size < page.size(); ++size)
        EXPECT_ERROR(basic::kInternalError, decodeFolderPage(std::span(page).first(size))) << size;
    page[0] = std::byte{2};
    EXPECT_ERROR(basic::kInternalError, decodeFolderPage(page));
}

} // namespace
} // namespace share::smb
