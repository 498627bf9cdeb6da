// SPDX-FileCopyrightText: 2026 The qmClient authors
// SPDX-License-Identifier: GPL-3.0-or-later
#include "platform/basic/ErrorNumbers.h"
#include "tests/data/ConfigTest.h"

namespace data {
namespace {

using errors::ErrorAction;

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
    EXPECT_EQ(asText(values.readValue(registry::Root::CurrentUser,
                                      "Software\\Corvantis\\Quillamar\\1.0\\Client", "ServerName")),
              "srv01");
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
                         .readValue(registry::Root::CurrentUser,
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

} // namespace
} // namespace data
