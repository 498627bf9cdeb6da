// SPDX-FileCopyrightText: 2026 The qmClient authors
// SPDX-License-Identifier: GPL-3.0-or-later
#include "platform/share/MountTable.h"

#include <gmock/gmock.h>

namespace share {
namespace {

using ::testing::ElementsAre;
using ::testing::IsEmpty;
using ::testing::SizeIs;

TEST(MountTable, FindsAMountedShare) {
    const MountTable table(
        "22 1 8:1 / / rw,relatime shared:1 - ext4 /dev/sda1 rw\n"
        "41 22 0:40 / /mnt/qm rw shared:9 master:2 - cifs //srv01/Quillamar_0$ rw,vers=3.1.1\n");
    ASSERT_THAT(table.shares(), SizeIs(1));
    EXPECT_EQ(table.shares()[0].server, "srv01");
    EXPECT_EQ(table.shares()[0].share, "Quillamar_0$");
    EXPECT_THAT(table.shares()[0].below, IsEmpty());
    EXPECT_EQ(table.shares()[0].mountPoint, "/mnt/qm");
}

TEST(MountTable, UnescapesBlanksAndBackslashes) {
    const MountTable table("41 22 0:40 / /mnt/my\\040share\\134x rw - cifs "
                           "\\134\\134srv\\134the\\040share rw\n");
    ASSERT_THAT(table.shares(), SizeIs(1));
    EXPECT_EQ(table.shares()[0].share, "the share");
    EXPECT_EQ(table.shares()[0].mountPoint, "/mnt/my share\\x");
}

TEST(MountTable, KeepsWhatLiesBetweenShareAndMount) {
    const MountTable table("41 22 0:40 / /a rw - cifs //srv/share/sub/deep rw\n"
                           "42 22 0:40 /MBX /b rw - smb3 //srv/share rw\n");
    ASSERT_THAT(table.shares(), SizeIs(2));
    EXPECT_THAT(table.shares()[0].below, ElementsAre("sub", "deep"));
    EXPECT_THAT(table.shares()[1].below, ElementsAre("MBX"));
}

TEST(MountTable, PassesOverLinesThatCannotBeRead) {
    for (const char* text : {"", "\n\n", "garbage", "1 2 3 4 5 6", "1 2 3 4 5 6 -", "1 2 3 4 5 6 - cifs",
                             "1 2 3 / /m rw - cifs //srv rw", "1 2 3 / /m rw - cifs / rw",
                             "1 2 3 / /m rw - nfs srv:/share rw", "- - - - - - - - -"})
        EXPECT_THAT(MountTable(text).shares(), IsEmpty()) << text;
}

TEST(MountTable, TruncatedEscapeStandsForItself) {
    const MountTable table("41 22 0:40 / /mnt/a\\04 rw - cifs //srv/share rw\n");
    ASSERT_THAT(table.shares(), SizeIs(1));
    EXPECT_EQ(table.shares()[0].mountPoint, "/mnt/a\\04");
}

TEST(MountTable, ReadsTheTextOfThisSystem) {
    EXPECT_NE(MountTable::systemText().find(" - "), std::string::npos);
}

} // namespace
} // namespace share
