// SPDX-FileCopyrightText: 2026 The qmClient authors
// SPDX-License-Identifier: GPL-3.0-or-later
#include "platform/share/smb/ShareNames.h"

#include "tests/platform/share/smb/SmbTest.h"

#include <gmock/gmock.h>

namespace share::testing {
namespace {

using ::testing::UnorderedElementsAre;

// A server starts programs of its own before it names its shares for the first time.
constexpr std::chrono::seconds kPatience{60};

constexpr const char* kMoreShares =
    "[public]\npath = /tmp\nbrowseable = yes\n[Büro 1]\npath = /tmp\n[admin$]\npath = /tmp\n";

TEST(ShareNames, AreThoseThatTheServerDoesNotHide) {
    SambaServer samba({.ofShare = kMoreShares});
    SmbClient client(samba.port(), "127.0.0.1", kPatience);
    ThreadWaiter waiter;
    EXPECT_THAT(smb::shareNames(client.server(), "srv01", waiter), UnorderedElementsAre("public", "Büro 1"));
}

TEST(ShareNames, AreAskedForBesideTheShareOfTheCalls) {
    SambaServer samba({.ofShare = kMoreShares});
    SmbClient client(samba.port(), "127.0.0.1", kPatience);
    ThreadWaiter waiter;
    EXPECT_TRUE(client.files().FolderExists(onShare("")));
    EXPECT_EQ(smb::shareNames(client.server(), "srv01", waiter).size(), 2U);
    EXPECT_TRUE(client.files().FolderExists(onShare("")));
}

TEST(ShareNames, AreNotToldToAWrongPasswordWhichIsTriedOnce) {
    SambaServer samba({.ofShare = kMoreShares});
    SmbClient client(samba.port(), "127.0.0.1", kPatience);
    client.password = "wrong";
    ThreadWaiter waiter;
    for (int time = 0; time < 3; ++time)
        EXPECT_ERROR(basic::kPermissionDenied, smb::shareNames(client.server(), "srv01", waiter));
    EXPECT_EQ(samba.logOns("NT_STATUS_WRONG_PASSWORD"), 1);
}

TEST(ShareNames, ComeAgainAfterTheConnectionWasCut) {
    SambaServer samba({.ofShare = kMoreShares});
    SmbClient client(samba.port(), "127.0.0.1", kPatience);
    ThreadWaiter waiter;
    EXPECT_EQ(smb::shareNames(client.server(), "srv01", waiter).size(), 2U);
    samba.cutConnections();
    EXPECT_EQ(smb::shareNames(client.server(), "srv01", waiter).size(), 2U);
}

TEST(ShareNames, EndWithTheDeadlineOfAServerThatHangs) {
    SambaServer samba({.ofShare = kMoreShares});
    SmbClient client(samba.port());
    ThreadWaiter waiter;
    samba.pause();
    EXPECT_ERROR(basic::kPathNotFound, smb::shareNames(client.server(), "srv01", waiter));
    samba.resume();
}

TEST(BrowseComputers, FindsNothingWithoutAHelper) {
    ThreadWaiter waiter;
    int found = 0;
    smb::browseComputers("/nonexistent", waiter, [&](const std::string&, const std::string&) { ++found; });
    EXPECT_EQ(found, 0);
}

TEST(BrowseComputers, EndsWhenItIsCancelled) {
    ThreadWaiter waiter;
    waiter.cancel();
    int found = 0;
    smb::browseComputers(smb::helperProgram(), waiter,
                         [&](const std::string&, const std::string&) { ++found; });
    EXPECT_EQ(found, 0);
}

} // namespace
} // namespace share::testing
