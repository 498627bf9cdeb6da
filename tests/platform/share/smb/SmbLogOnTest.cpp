// SPDX-FileCopyrightText: 2026 The qmClient authors
// SPDX-License-Identifier: GPL-3.0-or-later
#include "tests/platform/share/smb/SmbTest.h"

#include <chrono>
#include <string>

namespace share::testing {
namespace {

using namespace std::chrono_literals;

constexpr const char* kWrong = "NT_STATUS_WRONG_PASSWORD";

// The share's folder; whether the server takes guests at all is its configuration.
void letGuestsIn(const SambaServer& samba) {
    std::filesystem::permissions(samba.share().path(), std::filesystem::perms::all);
}

class SmbPasswordTest : public ::testing::TestWithParam<const char*> {};

TEST_P(SmbPasswordTest, IsTakenAsItIs) {
    SambaServer samba({.password = GetParam()});
    SmbClient client(samba.port());
    client.password = GetParam();
    EXPECT_TRUE(client.files().FolderExists(onShare("")));
}

INSTANTIATE_TEST_SUITE_P(Passwords, SmbPasswordTest,
                         ::testing::Values("p@ss:w/o%r\\d", "\xC3\xA4\xC3\xB6\xC3\xBC\xC3\x9F\xE2\x82\xAC",
                                           "%41%", " leading and trailing ", "\"quoted' $HOME `x`", "@",
                                           "a,b;c=d#e"));

TEST(SmbLogOn, TakesADomainBeforeTheUser) {
    SambaServer samba;
    for (const char* name : {"QMTEST\\mbxuser", "QMTEST/mbxuser"}) {
        SmbClient client(samba.port());
        client.user = name;
        EXPECT_TRUE(client.files().FolderExists(onShare(""))) << name;
    }
}

TEST(SmbLogOn, TakesAUserOfARealm) {
    SambaServer samba({.userNames = "mbxuser@QMTEST.EXAMPLE"});
    SmbClient client(samba.port());
    client.user = "mbxuser@QMTEST.EXAMPLE";
    EXPECT_TRUE(client.files().FolderExists(onShare("")));
}

TEST(SmbLogOn, TriesAWrongPasswordOnceHoweverOftenItIsAsked) {
    SambaServer samba;
    SmbClient client(samba.port());
    client.password = "wrong";
    for (int tick = 0; tick < 5; ++tick) {
        EXPECT_FALSE(client.files().FileExists(onShare("x")));
        EXPECT_ERROR(basic::kPermissionDenied, client.files().openFile(onShare("x"), OpenMode::Read));
        client.letPass(1h);
    }
    EXPECT_EQ(samba.logOns(kWrong), 1);
    EXPECT_EQ(samba.logOns("NT_STATUS_OK"), 0);
}

TEST(SmbLogOn, TriesAnotherPasswordWhenTheUserClicksAndNotTheSameOne) {
    SambaServer samba;
    SmbClient client(samba.port());
    client.password = "wrong";
    EXPECT_FALSE(client.files().FolderExists(onShare("")));
    client.servers().tryNow();
    EXPECT_FALSE(client.files().FolderExists(onShare("")));
    EXPECT_EQ(samba.logOns(kWrong), 1);
    client.password = "secret";
    EXPECT_FALSE(client.files().FolderExists(onShare("")));
    client.servers().tryNow();
    EXPECT_TRUE(client.files().FolderExists(onShare("")));
}

TEST(SmbLogOn, TriesTheSamePasswordAgainWhenToldSo) {
    SambaServer samba;
    SmbClient client(samba.port());
    client.password = "wrong";
    EXPECT_FALSE(client.files().FolderExists(onShare("")));
    samba.setPassword("wrong");
    client.servers().logOnAnew();
    EXPECT_TRUE(client.files().FolderExists(onShare("")));
}

TEST(SmbLogOn, NeverBecomesAGuestByAWrongPassword) {
    for (const char* how : {"Bad Password", "Bad User"}) {
        SambaServer samba({.global = std::string("guest account = nobody\nmap to guest = ") + how,
                           .ofShare = "guest ok = yes"});
        letGuestsIn(samba);
        SmbClient client(samba.port());
        client.password = "wrong";
        EXPECT_FALSE(client.files().FolderExists(onShare(""))) << how;
    }
}

TEST(SmbLogOn, NeverBecomesAGuestByAnUnknownName) {
    SambaServer samba(
        {.global = "guest account = nobody\nmap to guest = Bad User", .ofShare = "guest ok = yes"});
    letGuestsIn(samba);
    SmbClient client(samba.port());
    client.user = "nobodyknows";
    EXPECT_FALSE(client.files().FolderExists(onShare("")));
}

TEST(SmbLogOn, IsAnonymousWhereNobodyIsNamed) {
    SambaServer samba(
        {.global = "guest account = nobody\nmap to guest = Bad User", .ofShare = "guest ok = yes"});
    letGuestsIn(samba);
    SmbClient client(samba.port());
    client.user = client.password = "";
    EXPECT_TRUE(client.files().FolderExists(onShare("")));
}

TEST(SmbLogOn, FollowsAChangedPassword) {
    SambaServer samba;
    SmbClient client(samba.port());
    EXPECT_TRUE(client.files().FolderExists(onShare("")));
    samba.setPassword("changed");
    samba.cutConnections();
    EXPECT_FALSE(client.files().FolderExists(onShare("")));
    EXPECT_FALSE(client.files().FolderExists(onShare("")));
    EXPECT_EQ(samba.logOns(kWrong), 1);
    client.password = "changed";
    client.servers().tryNow();
    EXPECT_TRUE(client.files().FolderExists(onShare("")));
}

TEST(SmbLogOn, IsNotBlamedForAShareThatTheUserMustNotHave) {
    SambaServer samba({.ofShare = "invalid users = root"});
    SmbClient client(samba.port());
    try {
        client.files().openFile(onShare("x"), OpenMode::Read);
        FAIL() << "opened";
    } catch (const basic::RuntimeError& error) {
        EXPECT_EQ(error.number(), basic::kPermissionDenied);
        EXPECT_NE(error.description().find("refuses this user the share"), std::string::npos)
            << error.description();
    }
}

TEST(SmbLogOn, TellsOnceOfARefusedUser) {
    SambaServer samba;
    SmbClient client(samba.port());
    client.password = "wrong";
    for (int tick = 0; tick < 3; ++tick) {
        EXPECT_FALSE(client.files().FolderExists(onShare("")));
        client.letPass(1h);
        EXPECT_FALSE(client.files().FolderExists(onShare("")));
        client.servers().tryNow();
    }
    EXPECT_EQ(client.refused, 1);
    EXPECT_EQ(samba.logOns("NT_STATUS_WRONG_PASSWORD"), 1);
    client.password = "wrong, too";
    client.servers().tryNow();
    for (int tick = 0; tick < 3; ++tick)
        EXPECT_FALSE(client.files().FolderExists(onShare("")));
    EXPECT_EQ(client.refused, 2);
    EXPECT_EQ(samba.logOns("NT_STATUS_WRONG_PASSWORD"), 2);
}

TEST(SmbLogOn, TellsOnceOfAnAnonymousSessionThatMustNotHaveTheShare) {
    SambaServer samba({.global = "guest account = nobody\nmap to guest = Bad User"});
    SmbClient client(samba.port());
    client.user = client.password = "";
    for (int tick = 0; tick < 3; ++tick) {
        EXPECT_FALSE(client.files().FolderExists(onShare("")));
        client.letPass(1h);
    }
    EXPECT_EQ(client.refused, 1);
    client.user = SambaServer::kUser;
    client.password = "secret";
    client.servers().tryNow();
    EXPECT_TRUE(client.files().FolderExists(onShare("")));
    EXPECT_EQ(client.refused, 1);
}

TEST(SmbLogOn, TriesNoPasswordThatAnotherPartOfTheProgramWasRefusedWith) {
    SambaServer samba;
    const auto refusals = std::make_shared<smb::Refusals>();
    SmbClient first(samba.port(), "127.0.0.1", 3s, refusals);
    SmbClient second(samba.port(), "127.0.0.1", 3s, refusals);
    first.password = second.password = "wrong";
    EXPECT_FALSE(first.files().FolderExists(onShare("")));
    EXPECT_ERROR(basic::kPermissionDenied, second.files().openFile(onShare("x"), OpenMode::Read));
    EXPECT_EQ(samba.logOns(kWrong), 1);
    EXPECT_EQ(second.refused, 0);
    second.password = "secret";
    second.servers().tryNow();
    EXPECT_TRUE(second.files().FolderExists(onShare("")));
}

TEST(SmbLogOn, KeepsThePasswordOutOfTheErrorsText) {
    SambaServer samba;
    SmbClient client(samba.port());
    client.password = "hunter2";
    try {
        client.files().openFile(onShare("x"), OpenMode::Read);
        FAIL() << "opened";
    } catch (const basic::RuntimeError& error) {
        EXPECT_EQ(error.description().find("hunter2"), std::string::npos) << error.description();
    }
}

class SmbProtocolTest : public ::testing::TestWithParam<const char*> {};

TEST_P(SmbProtocolTest, IsSpoken) {
    SambaServer samba({.global = GetParam()});
    samba.share().makeFile("MBX/7/qmLog.mdb", "abc");
    SmbClient client(samba.port());
    EXPECT_EQ(client.files().openFile(onShare("MBX\\7\\qmLog.mdb"), OpenMode::Read)->size(), 3U);
}

INSTANTIATE_TEST_SUITE_P(Versions, SmbProtocolTest,
                         ::testing::Values("server min protocol = SMB2_10\nserver max protocol = SMB2_10",
                                           "server min protocol = SMB3_00\nserver max protocol = SMB3_00",
                                           "server min protocol = SMB3_02\nserver max protocol = SMB3_02",
                                           "server min protocol = SMB3_11\nserver max protocol = SMB3_11",
                                           "server signing = mandatory",
                                           "server signing = mandatory\nserver max protocol = SMB2_10",
                                           "server smb encrypt = required",
                                           "server smb encrypt = required\nserver max protocol = SMB3_00",
                                           "ntlm auth = ntlmv2-only"));

TEST(SmbProtocol, IsNeverTheFirstVersion) {
    SambaServer samba({.global = "server min protocol = NT1\nserver max protocol = NT1"});
    SmbClient client(samba.port());
    EXPECT_ERROR(basic::kPathNotFound, client.files().openFile(onShare("x"), OpenMode::Read));
}

} // namespace
} // namespace share::testing
