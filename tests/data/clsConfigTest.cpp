// SPDX-FileCopyrightText: 2026 The qmClient authors
// SPDX-License-Identifier: GPL-3.0-or-later
#include "tests/data/ConfigTest.h"

namespace data {
namespace {

TEST_F(clsConfigTest, BeginsWithAnIntervalOfTenSecondsAndNothingElse) {
    EXPECT_EQ(config.PollInterval, 10);
    EXPECT_EQ(config.ServerName, "");
    EXPECT_EQ(config.Mailboxes.Count(), 0);
}

TEST_F(clsConfigTest, AnEmptyRegistryLoadsOneMailboxWithoutNumberAndName) {
    EXPECT_TRUE(config.LoadConfig());
    EXPECT_EQ(config.ServerName, "");
    EXPECT_EQ(config.PollInterval, 10);
    EXPECT_EQ(keysOf(config), "KEY=0;");
    EXPECT_EQ(config.Mailboxes.at("KEY")->Name, "");
    EXPECT_TRUE(errors.reports.empty());
}

TEST_F(clsConfigTest, LoadsEverythingInStoredOrder) {
    putUser(kClient + "\"ServerName\"=\"\\\\\\\\srv01\"\n\"PollInterval\"=dword:0000001e\n" +
            mailboxLines("12", "twelve") + mailboxLines("3", "three"));
    EXPECT_TRUE(config.LoadConfig());
    EXPECT_EQ(config.ServerName, "\\\\srv01");
    EXPECT_EQ(config.PollInterval, 30);
    EXPECT_EQ(keysOf(config), "KEY12=12;KEY3=3;");
    EXPECT_EQ(config.Mailboxes.at("KEY12")->Description, "about twelve");
    EXPECT_EQ(config.Mailboxes.at("KEY12")->MailboxType, "M");
    EXPECT_EQ(config.Mailboxes.at("KEY12")->LastCallCount, 0);
    EXPECT_EQ(config.Mailboxes.at("KEY12")->NewCallCount, 0);
}

TEST_F(clsConfigTest, LoadingReplacesWhatWasThere) {
    config.ServerName = "old";
    config.PollInterval = 99;
    add(7, "old");
    EXPECT_TRUE(config.LoadConfig());
    EXPECT_EQ(config.ServerName, "");
    EXPECT_EQ(config.PollInterval, 10);
    EXPECT_EQ(keysOf(config), "KEY=0;");
}

TEST_F(clsConfigTest, AnIntervalOfZeroLoadsAsTen) {
    putUser(kClient + "\"PollInterval\"=dword:00000000\n");
    config.LoadConfig();
    EXPECT_EQ(config.PollInterval, 10);
}

TEST_F(clsConfigTest, NoOtherIntervalIsClampedOnLoading) {
    putUser(kClient + "\"PollInterval\"=dword:00000384\n");
    config.LoadConfig();
    EXPECT_EQ(config.PollInterval, 900);
    putUser(kClient + "\"PollInterval\"=dword:ffffffff\n");
    config.LoadConfig();
    EXPECT_EQ(config.PollInterval, -1);
}

TEST_F(clsConfigTest, AMailboxWithoutNameLoadsWithAnEmptyName) {
    putUser("[HKEY_CURRENT_USER\\Software\\Corvantis\\Quillamar\\1.0\\Client\\Mailboxes\\5]\n");
    EXPECT_TRUE(config.LoadConfig());
    EXPECT_EQ(config.Mailboxes.at("KEY5")->Name, "");
}

TEST_F(clsConfigTest, SavingTwoOfThreeMailboxesLeavesExactlyTheirSubkeys) {
    putUser(mailboxLines("3", "three") + mailboxLines("7", "seven") + mailboxLines("12", "twelve"));
    config.LoadConfig();
    config.Mailboxes.Remove("KEY7");
    EXPECT_TRUE(config.SaveConfig());
    EXPECT_EQ(storedMailboxes(), (std::vector<std::string>{"3", "12"}));
    EXPECT_TRUE(boxes.boxes.empty());
}

TEST_F(clsConfigTest, EverySettingSurvivesSavingAndLoading) {
    config.ServerName = "\\\\B\xC3\xBCro \"1\"\\";
    config.PollInterval = -7;
    add(12, "zw\xC3\xB6lf");
    add(-3, "line\nend");
    add(2147483647, "");
    config.Mailboxes.at(1)->Description = "a;b=[c]";
    config.Mailboxes.at(1)->MailboxType = "X";
    EXPECT_TRUE(config.SaveConfig());

    registry::Registry other(folder.paths(), calls);
    clsConfig loaded{other, boxes, errors};
    EXPECT_TRUE(loaded.LoadConfig());
    EXPECT_EQ(loaded.ServerName, config.ServerName);
    EXPECT_EQ(loaded.PollInterval, -7);
    EXPECT_EQ(keysOf(loaded), "KEY12=12;KEY-3=-3;KEY2147483647=2147483647;");
    for (std::int32_t i = 1; i <= 3; ++i) {
        EXPECT_EQ(loaded.Mailboxes.at(i)->Name, config.Mailboxes.at(i)->Name);
        EXPECT_EQ(loaded.Mailboxes.at(i)->Description, config.Mailboxes.at(i)->Description);
        EXPECT_EQ(loaded.Mailboxes.at(i)->MailboxType, config.Mailboxes.at(i)->MailboxType);
    }
    EXPECT_TRUE(errors.reports.empty());
}

TEST_F(clsConfigTest, SubkeyNamesAreReadByTheirLeadingNumber) {
    putUser(mailboxLines("3x", "a") + mailboxLines("x", "b") + mailboxLines("3", "c"));
    EXPECT_TRUE(config.LoadConfig());
    EXPECT_EQ(keysOf(config), "KEY3x=3;KEYx=0;KEY3=3;");
}

TEST_F(clsConfigTest, ClearForgetsTheMailboxesOnly) {
    config.ServerName = "srv01";
    config.PollInterval = 20;
    add(3, "three");
    EXPECT_TRUE(config.Clear());
    EXPECT_EQ(config.Mailboxes.Count(), 0);
    EXPECT_EQ(config.ServerName, "srv01");
    EXPECT_EQ(config.PollInterval, 20);
}

TEST_F(clsConfigTest, ForeignKeysAndValuesSurviveSaving) {
    putUser(kClient + "\"Window\"=hex:01,02\n[HKEY_LOCAL_MACHINE\\Else]\n@=\"kept\"\n");
    EXPECT_TRUE(config.SaveConfig());
    const std::string after = folder.content(folder.userFile());
    EXPECT_NE(after.find("\"Window\"=hex:01,02"), std::string::npos);
    EXPECT_NE(after.find("[HKEY_LOCAL_MACHINE\\Else]\n@=\"kept\""), std::string::npos);
}

} // namespace
} // namespace data
