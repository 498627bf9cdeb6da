// SPDX-FileCopyrightText: 2026 The qmClient authors
// SPDX-License-Identifier: GPL-3.0-or-later
#include "platform/share/MountTable.h"

#include <gmock/gmock.h>
#include <sys/sysmacros.h>

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

class MountWithoutLocks : public ::testing::TestWithParam<const char*> {};

TEST_P(MountWithoutLocks, IsKnownByItsDevice) {
    const MountTable table("22 1 8:1 / / rw,relatime shared:1 - ext4 /dev/sda1 rw\n"
                           "41 22 0:40 / /mnt/q rw shared:9 - " +
                           std::string(GetParam()) + "\n");
    EXPECT_FALSE(table.locksAreShared(::makedev(0, 40)));
    EXPECT_TRUE(table.locksAreShared(::makedev(8, 1)));
    EXPECT_TRUE(table.locksAreShared(::makedev(40, 0)));
}

INSTANTIATE_TEST_SUITE_P(Lines, MountWithoutLocks,
                         ::testing::Values("cifs //srv/share rw,vers=3.1.1,nobrl,actimeo=1",
                                           "smb3 //srv/share rw,nobrl", "cifs //srv/share rw,cache=loose",
                                           "cifs //srv/share cache=singleclient", "fuse x rw,user_id=0",
                                           "fuse.sshfs srv:/share rw", "nfs srv:/share rw,local_lock=all",
                                           "nfs srv:/share rw,vers=3,local_lock=posix,nolock"));

TEST(MountTable, LocksOfOtherMountsAreShared) {
    for (const char* line :
         {"cifs //srv/share rw,vers=3.1.1,cache=strict", "cifs //srv/nobrl rw", "smb3 //srv/share rw,nobrlx",
          "ext4 /dev/sda1 rw", "fuseblk /dev/sdb1 rw", "fuse.fuse-overlayfs fuse-overlayfs rw",
          "nfs4 srv:/share rw,local_lock=none", "cifs //srv/share", "cifs", ""})
        EXPECT_TRUE(MountTable("41 22 0:40 / /m rw - " + std::string(line)).locksAreShared(::makedev(0, 40)))
            << line;
    for (const char* device : {"0", "x:40", "0:", ":40", "0:40x", "0:99999999999"})
        EXPECT_TRUE(MountTable("41 22 " + std::string(device) + " / /m rw - fuse x rw")
                        .locksAreShared(::makedev(0, 40)))
            << device;
}

std::string slowMount(const std::string& table, std::string_view path) {
    const std::optional<SlowMount> mount = MountTable(table).slowMountOf(path);
    return mount ? mount->id + " " + mount->mountPoint : "none";
}

TEST(MountTable, KnowsTheMountsThatServersAndProgramsAnswerFor) {
    for (const char* type : {"cifs", "smb3", "nfs", "nfs4", "9p", "autofs", "fuse", "fuse.sshfs"}) {
        const std::string table = "22 1 8:1 / / rw - ext4 /dev/sda1 rw\n41 22 0:40 / /mnt/q rw - " +
                                  std::string(type) + " srv:/share rw\n";
        EXPECT_EQ(slowMount(table, "/mnt/q/MBX"), "41 /mnt/q") << type;
        EXPECT_EQ(slowMount(table, "/mnt/q"), "41 /mnt/q") << type;
        EXPECT_EQ(slowMount(table, "/mnt/qm"), "none") << type;
        EXPECT_EQ(slowMount(table, "/mnt"), "none") << type;
    }
    for (const char* type : {"ext4", "tmpfs", "fuseblk", "fuse.fuse-overlayfs", "nfsd"})
        EXPECT_EQ(slowMount("41 22 0:40 / /mnt/q rw - " + std::string(type) + " x rw", "/mnt/q"), "none")
            << type;
}

TEST(MountTable, AsksTheMountThatLiesOnTop) {
    const std::string table = "22 1 0:20 / / rw - nfs srv:/root rw\n"
                              "41 22 8:1 / /home rw - ext4 /dev/sda1 rw\n"
                              "42 41 0:40 / /home/a\\040b rw - fuse.sshfs srv: rw\n"
                              "43 22 0:41 / /mnt rw - cifs //srv/share rw\n"
                              "44 43 0:42 / /mnt rw - tmpfs none rw\n";
    EXPECT_EQ(slowMount(table, "/srv"), "22 /");
    EXPECT_EQ(slowMount(table, "/home/c"), "none");
    EXPECT_EQ(slowMount(table, "/home/a b/c"), "42 /home/a b");
    EXPECT_EQ(slowMount(table, "/mnt/c"), "none");
    EXPECT_EQ(slowMount("", "/mnt"), "none");
}

TEST(MountTable, SeesThroughDetours) {
    const std::string table = "22 1 8:1 / / rw - ext4 /dev/sda1 rw\n41 22 0:40 / /mnt/q rw - nfs s:/ rw\n";
    for (const char* path : {"//mnt/q", "/mnt//q/", "/mnt/./q", "/srv/../mnt/q", "/../mnt/q/MBX/.."})
        EXPECT_EQ(slowMount(table, path), "41 /mnt/q") << path;
    EXPECT_EQ(slowMount(table, "/MNT/Q"), "41 /mnt/q");
    EXPECT_EQ(slowMount(table, "/mnt/q/.."), "none");
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
