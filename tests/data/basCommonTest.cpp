// SPDX-FileCopyrightText: 2026 The qmClient authors
// SPDX-License-Identifier: GPL-3.0-or-later
#include "data/basCommon.h"

#include "data/clsConfig.h"
#include "platform/basic/RuntimeError.h"
#include "tests/data/CallLogFile.h"
#include "tests/data/NotedFiles.h"
#include "tests/data/SettingsWorld.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

namespace data {
namespace {

using testing::Each;
using testing::ElementsAre;
using testing::IsEmpty;

constexpr const char* kLogOfSeven = "\\\\srv01\\Quillamar_0$\\MBX\\7\\qmLog.mdb";

class basCommonTest : public testing::Test, protected SettingsWorld {
protected:
    basCommonTest() { config.ServerName = "srv01"; }

    tests::CallLogFile logOf(int mailbox) {
        const tests::CallLogFile log(folder.folder() / "share/MBX" / std::to_string(mailbox) / "qmLog.mdb");
        log.create();
        return log;
    }
    auto connect() { return common.GetMBXCon(7, config); }

    NotedFiles files{folder.folder() / "share"};
    jet::Engine engine{files, [](int) {}};
    int made = 0;
    basCommon common{errors, files, [this] {
                         ++made;
                         return std::make_shared<jet::Connection>(engine);
                     }};
    clsConfig config{registry, boxes, errors};
};

TEST_F(basCommonTest, TheShareIsTheSameWhateverBackslashesTheServersNameCarries) {
    for (const char* name : {"srv01", "\\\\srv01", "srv01\\", "\\srv01\\\\", "s\\rv\\01"})
        EXPECT_EQ(common.GetQMPath(name), "\\\\srv01\\Quillamar_0$") << name;
}

TEST_F(basCommonTest, AServersNameOfOnlyBackslashesGivesAShareThatDoesNotExist) {
    for (const char* name : {"\\", "\\\\", "\\\\\\\\"}) {
        EXPECT_EQ(common.GetQMPath(name), "\\\\\\Quillamar_0$") << name;
        EXPECT_FALSE(files.FolderExists(common.GetQMPath(name))) << name;
    }
}

TEST_F(basCommonTest, TheConnectionOpensTheMailboxsDatabaseOnTheConfiguredServer) {
    logOf(7).append({"A1"});
    const auto connection = connect();
    ASSERT_NE(connection, nullptr);
    EXPECT_EQ(connection->State(), 1);
    EXPECT_THAT(files.asked, ElementsAre(kLogOfSeven));
    EXPECT_THAT(files.opened, testing::AllOf(testing::Not(IsEmpty()), Each(kLogOfSeven)));
    EXPECT_EQ(connection->Execute("SELECT COUNT(*) FROM CallLog")->Field(0), basic::Variant(1));
}

TEST_F(basCommonTest, AnotherServersNameFindsNoDatabase) {
    logOf(7);
    config.ServerName = "srv02";
    EXPECT_EQ(connect(), nullptr);
    EXPECT_THAT(files.asked, ElementsAre("\\\\srv02\\Quillamar_0$\\MBX\\7\\qmLog.mdb"));
}

TEST_F(basCommonTest, AFolderWithoutADatabaseGivesNoConnectionAndNoMessage) {
    std::filesystem::create_directories(folder.folder() / "share/MBX/7");
    EXPECT_EQ(connect(), nullptr);
    EXPECT_THAT(files.opened, IsEmpty());
    EXPECT_TRUE(errors.reports.empty());
    EXPECT_TRUE(boxes.boxes.empty());
}

TEST_F(basCommonTest, ADatabaseThatCannotBeOpenedGivesNoConnectionAndNoMessage) {
    registry::RegistryFolder::put(folder.folder() / "share/MBX/7/qmLog.mdb", "no database at all");
    EXPECT_EQ(connect(), nullptr);
    EXPECT_THAT(files.opened, ElementsAre(kLogOfSeven));
    EXPECT_TRUE(errors.reports.empty());
    EXPECT_TRUE(boxes.boxes.empty());
}

TEST_F(basCommonTest, EveryConnectionIsANewOne) {
    logOf(7);
    const auto first = connect();
    const auto second = connect();
    EXPECT_NE(first, second);
    EXPECT_EQ(made, 2);
}

TEST_F(basCommonTest, ConnectionThatCannotBeMadeIsReportedUnderTheProceduresNames) {
    const basCommon failing{errors, files,
                            []() -> std::shared_ptr<jet::Connection> { throw basic::RuntimeError(429); }};
    EXPECT_EQ(failing.GetMBXCon(7, config), nullptr);
    ASSERT_EQ(errors.reports.size(), 1U);
    EXPECT_EQ(errors.reports[0].module, "basCommon");
    EXPECT_EQ(errors.reports[0].procedure, "GetMBXCon");
    EXPECT_EQ(errors.reports[0].number, 429);
}

TEST_F(basCommonTest, TheSoundOfACallLiesBesideItsMailboxsDatabase) {
    const std::string root = common.GetQMPath("srv01");
    EXPECT_EQ(mailboxFolder(root, 7), "\\\\srv01\\Quillamar_0$\\MBX\\7");
    EXPECT_EQ(mailboxDatabase(root, 7), kLogOfSeven);
    EXPECT_EQ(messageFile(root, 7, "C"), "\\\\srv01\\Quillamar_0$\\MBX\\7\\C.wav");
}

} // namespace
} // namespace data
