// SPDX-FileCopyrightText: 2026 The qmClient authors
// SPDX-License-Identifier: GPL-3.0-or-later
#include "data/ShareMappings.h"

#include "platform/basic/RuntimeError.h"
#include "tests/data/SettingsWorld.h"

#include <gtest/gtest.h>

#include <functional>

namespace data {
namespace {

const std::string kShares = "\\Software\\Corvantis\\Quillamar\\1.0\\Shares]\n";

class ShareMappingsTest : public ::testing::Test, protected SettingsWorld {
protected:
    std::function<std::optional<std::string>(std::string_view)> folderOf = ShareMappings(registry);

    void putUserShares(const std::string& lines) const { putUser("[HKEY_CURRENT_USER" + kShares + lines); }
    void putMachineShares(const std::string& lines) const {
        putMachine("[HKEY_LOCAL_MACHINE" + kShares + lines);
    }
};

TEST_F(ShareMappingsTest, KnowsNoServerWithoutSettings) {
    EXPECT_EQ(folderOf("srv01"), std::nullopt);
}

TEST_F(ShareMappingsTest, FindsAServerWithoutCaseAndWithBackslashes) {
    putMachineShares("\"SRV01\"=\"/srv/quillamar\"\n\"\\\\\\\\srv02\"=\"/srv/two\"\n");
    EXPECT_EQ(folderOf("srv01"), "/srv/quillamar");
    EXPECT_EQ(folderOf("\\\\Srv01"), "/srv/quillamar");
    EXPECT_EQ(folderOf("\\\\Srv01\\"), "/srv/quillamar");
    EXPECT_EQ(folderOf("SRV02"), "/srv/two");
    EXPECT_EQ(folderOf("srv03"), std::nullopt);
}

TEST_F(ShareMappingsTest, TheUsersEntryWinsOverTheMachines) {
    putMachineShares("\"srv01\"=\"/srv/machine\"\n\"srv02\"=\"/srv/two\"\n");
    putUserShares("\"srv01\"=\"/home/u/share\"\n");
    EXPECT_EQ(folderOf("srv01"), "/home/u/share");
    EXPECT_EQ(folderOf("srv02"), "/srv/two");
}

TEST_F(ShareMappingsTest, EmptyAndNonTextEntriesCountAsNone) {
    putUserShares("\"a\"=\"\"\n\"b\"=dword:00000001\n@=\"/default\"\n\"\\\\\\\\\"=\"/odd\"\n");
    putMachineShares("\"a\"=\"/machine\"\n");
    EXPECT_EQ(folderOf("a"), "/machine");
    EXPECT_EQ(folderOf("b"), std::nullopt);
    EXPECT_EQ(folderOf(""), std::nullopt);
    EXPECT_EQ(folderOf("\\\\"), std::nullopt);
}

TEST_F(ShareMappingsTest, SeesAChangeAtOnce) {
    putUserShares("\"a\"=\"/one\"\n");
    EXPECT_EQ(folderOf("a"), "/one");
    putUserShares("\"a\"=\"/another\"\n");
    EXPECT_EQ(folderOf("a"), "/another");
}

TEST_F(ShareMappingsTest, ADamagedFileIsAnErrorNotAMissingEntry) {
    putMachine("nonsense\n");
    EXPECT_THROW(folderOf("a"), basic::RuntimeError);
}

} // namespace
} // namespace data
