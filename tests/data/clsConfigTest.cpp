// SPDX-FileCopyrightText: 2026 The qmClient authors
// SPDX-License-Identifier: GPL-3.0-or-later
#include "data/clsConfig.h"

#include "platform/basic/ErrorNumbers.h"
#include "tests/data/SettingsWorld.h"

#include <gtest/gtest.h>

namespace data {
namespace {

using errors::ErrorAction;
using registry::Root;

const std::string kClient = "[HKEY_CURRENT_USER\\Software\\Corvantis\\Quillamar\\1.0\\Client]\n";

std::string mailboxLines(const std::string& subkey, const std::string& name) {
    return "[HKEY_CURRENT_USER\\Software\\Corvantis\\Quillamar\\1.0\\Client\\Mailboxes\\" + subkey +
           "]\n\"Name\"=\"" + name + "\"\n\"Description\"=\"about " + name + "\"\n\"MailboxType\"=\"M\"\n";
}

class clsConfigTest : public ::testing::Test, protected SettingsWorld {
protected:
    clsConfig config{registry, boxes, errors};

    std::string keysOf(const clsConfig& loaded) {
        std::string keys;
        for (std::int32_t i = 1; i <= loaded.Mailboxes.Count(); ++i)
            keys += loaded.Mailboxes.keyAt(i) + "=" + std::to_string(loaded.Mailboxes.at(i)->ID) + ";";
        return keys;
    }
    std::vector<std::string> storedMailboxes() {
        return values.listSubkeys(Root::CurrentUser,
                                  "Software\\Corvantis\\Quillamar\\1.0\\Client\\Mailboxes");
    }
    void add(std::int32_t id, const std::string& name) {
        auto mailbox = std::make_shared<clsMailbox>(errors);
        mailbox->ID = id;
        mailbox->Name = name;
        mailbox->MailboxType = "M";
        config.Mailboxes.Add(mailbox, "KEY" + std::to_string(id));
    }
};

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

TEST_F(clsConfigTest, TheFirstSaveIntoAnEmptyStoreShowsNoMessageBox) {
    EXPECT_TRUE(config.SaveConfig());
    EXPECT_TRUE(boxes.boxes.empty());
    EXPECT_TRUE(errors.reports.empty());
}

TEST_F(clsConfigTest, ASubkeyThatCannotBeDeletedShowsItsBoxAndSavingGoesOn) {
    putUser("[HKEY_CURRENT_USER\\Software\\Corvantis\\Quillamar\\1.0\\Client\\Mailboxes\\7\\extra]\n");
    config.ServerName = "srv01";
    EXPECT_TRUE(config.SaveConfig());
    ASSERT_EQ(boxes.boxes.size(), 1U);
    EXPECT_EQ(boxes.boxes.front().title, "ODBC Registry");
    EXPECT_EQ(asText(values.readValue(Root::CurrentUser, "Software\\Corvantis\\Quillamar\\1.0\\Client",
                                      "ServerName")),
              "srv01");
}

TEST_F(clsConfigTest, SubkeyNamesAreReadByTheirLeadingNumber) {
    putUser(mailboxLines("3x", "a") + mailboxLines("x", "b") + mailboxLines("3", "c"));
    EXPECT_TRUE(config.LoadConfig());
    EXPECT_EQ(keysOf(config), "KEY3x=3;KEYx=0;KEY3=3;");
}

TEST_F(clsConfigTest, ANumberBeyond32BitsIsReportedAsOverflow) {
    putUser(mailboxLines("99999999999", "big") + mailboxLines("4", "four"));
    errors.answers = {ErrorAction::Ignore};
    EXPECT_TRUE(config.LoadConfig());
    ASSERT_EQ(errors.reports.size(), 1U);
    EXPECT_EQ(errors.reports[0].module, "clsConfig");
    EXPECT_EQ(errors.reports[0].procedure, "LoadConfig");
    EXPECT_EQ(errors.reports[0].number, basic::kOverflow);
    EXPECT_EQ(keysOf(config), "KEY99999999999=0;KEY4=4;");
}

TEST_F(clsConfigTest, AnIntervalStoredAsTextIsTakenWhenItIsANumber) {
    putUser(kClient + "\"PollInterval\"=\"45\"\n");
    config.LoadConfig();
    EXPECT_EQ(config.PollInterval, 45);
}

TEST_F(clsConfigTest, AnIntervalStoredAsOtherTextIsATypeMismatch) {
    putUser(kClient + "\"PollInterval\"=\"often\"\n");
    EXPECT_FALSE(config.LoadConfig());
    ASSERT_EQ(errors.reports.size(), 1U);
    EXPECT_EQ(errors.reports[0].number, basic::kTypeMismatch);
    EXPECT_EQ(errors.reports[0].procedure, "LoadConfig");
}

TEST_F(clsConfigTest, ADamagedFileIsReportedAndAbortEndsTheLoading) {
    putUser("nonsense\n");
    EXPECT_FALSE(config.LoadConfig());
    ASSERT_EQ(errors.reports.size(), 1U);
    EXPECT_EQ(errors.reports[0].number, basic::kPathFileAccess);
    EXPECT_NE(errors.reports[0].description.find("line 3"), std::string::npos)
        << errors.reports[0].description;
}

TEST_F(clsConfigTest, ADamagedFileIsNeverOverwrittenWhateverIsAnswered) {
    putUser("nonsense\n");
    const std::string before = folder.content(folder.userFile());
    add(3, "three");
    errors.answers.assign(20, ErrorAction::Ignore);
    config.SaveConfig();
    EXPECT_FALSE(errors.reports.empty());
    EXPECT_EQ(folder.content(folder.userFile()), before);
}

TEST_F(clsConfigTest, RetryLoadsOnceTheFileIsMended) {
    putUser("nonsense\n");
    errors.answers = {ErrorAction::Retry};
    errors.onReport = [this] { putUser(mailboxLines("8", "eight")); };
    EXPECT_TRUE(config.LoadConfig());
    EXPECT_EQ(keysOf(config), "KEY8=8;");
}

// A disk that is full, or takes a few more writes before it is.
class FullDisk final : public registry::SystemCalls {
public:
    ssize_t write(int file, const void* from, std::size_t size) override {
        if (isFull && writesLeft-- <= 0) {
            errno = ENOSPC;
            return -1;
        }
        return SystemCalls::write(file, from, size);
    }
    bool isFull = true;
    int writesLeft = 0;
};

TEST_F(clsConfigTest, ASaveIsAllOrNothingWheneverTheDiskFillsUp) {
    const std::string old = folder.settings(mailboxLines("3", "three") + mailboxLines("4", "four"));
    std::string complete;
    for (int writes = 8; writes >= 0; --writes) {
        folder.put(folder.userFile(), old);
        FullDisk full;
        full.writesLeft = writes;
        registry::Registry failing(folder.paths(), full);
        clsConfig saved{failing, boxes, errors};
        saved.LoadConfig();
        saved.ServerName = "new";
        const bool isSaved = saved.SaveConfig();
        if (complete.empty())
            complete = folder.content(folder.userFile());
        EXPECT_EQ(folder.content(folder.userFile()), isSaved ? complete : old) << writes;
    }
    EXPECT_NE(complete.find("\"ServerName\"=\"new\""), std::string::npos);
}

TEST_F(clsConfigTest, AbortAfterAFailedSaveLeavesTheOldFile) {
    putUser(mailboxLines("3", "three"));
    const std::string before = folder.content(folder.userFile());
    FullDisk full;
    registry::Registry failing(folder.paths(), full);
    clsConfig saved{failing, boxes, errors};
    saved.ServerName = "new";
    EXPECT_FALSE(saved.SaveConfig());
    ASSERT_EQ(errors.reports.size(), 1U);
    EXPECT_EQ(errors.reports[0].number, basic::kPathFileAccess);
    EXPECT_EQ(errors.reports[0].procedure, "SaveConfig");
    EXPECT_EQ(folder.content(folder.userFile()), before);
    EXPECT_EQ(asText(basRegistry(failing, boxes)
                         .readValue(Root::CurrentUser,
                                    "Software\\Corvantis\\Quillamar\\1.0\\Client\\Mailboxes\\3", "Name")),
              "three");
}

TEST_F(clsConfigTest, RetryAfterAFailedSaveSavesAllOfIt) {
    putUser(mailboxLines("3", "three"));
    FullDisk full;
    registry::Registry failing(folder.paths(), full);
    clsConfig saved{failing, boxes, errors};
    saved.LoadConfig();
    saved.ServerName = "new";
    errors.answers = {ErrorAction::Retry};
    errors.onReport = [&] { full.isFull = false; };
    EXPECT_TRUE(saved.SaveConfig());
    EXPECT_TRUE(config.LoadConfig());
    EXPECT_EQ(config.ServerName, "new");
    EXPECT_EQ(keysOf(config), "KEY3=3;");
}

TEST_F(clsConfigTest, MailboxesReplacedDuringAReportDoNotDisturbTheSaving) {
    add(3, "three");
    add(4, "four");
    folder.put(folder.userFile(), "nonsense");
    errors.answers.assign(20, ErrorAction::Ignore);
    errors.onReport = [this] { config.Clear(); };
    EXPECT_TRUE(config.SaveConfig());
    EXPECT_EQ(config.Mailboxes.Count(), 0);
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
