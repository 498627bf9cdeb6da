// SPDX-FileCopyrightText: 2026 The qmClient authors
// SPDX-License-Identifier: GPL-3.0-or-later
#include "errors/GetWinVer.h"

#include "errors/SystemVersion.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <string_view>

namespace errors {
namespace {

std::string textOf(std::uint32_t platform, std::uint32_t major, std::uint32_t minor,
                   std::uint32_t build = 2600, std::string_view pack = {}) {
    return GetWinVer([&](VersionRecord& record) {
        record.platformId = platform;
        record.major = major;
        record.minor = minor;
        record.build = build;
        std::copy(pack.begin(), pack.end(), record.servicePack.begin());
        return true;
    });
}

struct Row {
    std::uint32_t platform;
    std::uint32_t major;
    std::uint32_t minor;
    const char* name;
};

TEST(GetWinVer, NamesEverySystemOfTheTable) {
    for (const Row& row : {
             Row{0, 1, 30, "32s"},  Row{0, 9, 9, "32s"},   Row{1, 4, 0, "95"},      Row{1, 4, 90, "ME"},
             Row{1, 3, 0, "95"},    Row{1, 4, 10, "98"},   Row{1, 4, 89, "98"},     Row{2, 3, 0, "NT3"},
             Row{2, 3, 1, "NT3.1"}, Row{2, 3, 5, "NT3.5"}, Row{2, 3, 51, "NT3.51"}, Row{2, 3, 2, ""},
             Row{2, 4, 0, "NT 4"},  Row{2, 4, 77, "NT 4"}, Row{2, 5, 0, "Win2000"}, Row{2, 5, 1, "WinXP"},
             Row{2, 5, 2, ""},      Row{2, 6, 0, ""},      Row{2, 6, 1, ""},        Row{2, 10, 0, ""},
             Row{2, 2, 0, ""},      Row{3, 4, 0, ""},      Row{255, 5, 1, ""},
         })
        EXPECT_EQ(textOf(row.platform, row.major, row.minor), std::string(row.name) + " Build:2600 ")
            << row.platform << ' ' << row.major << ' ' << row.minor;
}

TEST(GetWinVer, AppendsBuildAndServicePack) {
    EXPECT_EQ(textOf(2, 5, 1, 2600, "Service Pack 2"), "WinXP Build:2600 Service Pack 2");
}

TEST(GetWinVer, WithoutServicePackTheTextEndsInTheBlank) {
    EXPECT_EQ(textOf(2, 5, 0, 2195), "Win2000 Build:2195 ");
}

TEST(GetWinVer, ASystemThatIsNotInTheTableBeginsWithTheBlank) {
    EXPECT_EQ(textOf(2, 6, 1, 7601, "Service Pack 1"), " Build:7601 Service Pack 1");
}

TEST(GetWinVer, ShowsTheWholeBuildField) {
    EXPECT_EQ(textOf(1, 4, 0, 67109814), "95 Build:67109814 ");
}

TEST(GetWinVer, ServicePackEndsAtItsFirstNulOrWithTheField) {
    using namespace std::string_view_literals;
    EXPECT_EQ(textOf(2, 5, 1, 1, "A\0B"sv), "WinXP Build:1 A");
    EXPECT_EQ(textOf(2, 5, 1, 1, std::string(128, 'x')), "WinXP Build:1 " + std::string(128, 'x'));
}

TEST(GetWinVer, IsEmptyWhenTheCallFails) {
    EXPECT_EQ(GetWinVer([](VersionRecord&) { return false; }), "");
}

TEST(GetWinVer, AsksWithTheRecordsSize) {
    std::uint32_t size = 0;
    GetWinVer([&](VersionRecord& record) {
        size = record.size;
        return false;
    });
    EXPECT_EQ(size, 148U);
}

std::string textOfLinux(std::string_view kernel, std::string_view osRelease) {
    return GetWinVer([&](VersionRecord& record) { return versionFrom(kernel, osRelease, record); });
}

TEST(SystemVersion, CarriesKernelAndDistribution) {
    EXPECT_EQ(
        textOfLinux("6.1.0-18-amd64", "NAME=\"Debian\"\nPRETTY_NAME=\"Debian GNU/Linux 12 (bookworm)\"\n"),
        " Build:393472 Linux 6.1.0-18-amd64, Debian GNU/Linux 12 (bookworm)");
}

TEST(SystemVersion, PlatformIsNoneOfThePlatforms) {
    VersionRecord record;
    record.size = kVersionRecordSize;
    ASSERT_TRUE(systemVersion(record));
    EXPECT_GT(record.platformId, 2U);
    EXPECT_GE(record.major, 4U);
    EXPECT_EQ(GetWinVer(systemVersion).substr(0, 7), " Build:");
    EXPECT_NE(GetWinVer(systemVersion).find(" Linux "), std::string::npos);
}

TEST(SystemVersion, TakesEveryFormOfTheFile) {
    EXPECT_EQ(textOfLinux("5.15.300", "PRETTY_NAME='One'"), " Build:331775 Linux 5.15.300, One");
    EXPECT_EQ(textOfLinux("5.15.300", "PRETTY_NAME=Two\nX=1"), " Build:331775 Linux 5.15.300, Two");
    EXPECT_EQ(textOfLinux("5.15", "MY_PRETTY_NAME=Three"), " Build:331520 Linux 5.15");
    EXPECT_EQ(textOfLinux("", ""), " Build:0 Linux ");
}

TEST(SystemVersion, CutsALongTextToTheFieldAtACharacter) {
    VersionRecord record;
    record.size = kVersionRecordSize;
    ASSERT_TRUE(versionFrom("6.1.0", "PRETTY_NAME=" + std::string(111, 'x') + "ää", record));
    EXPECT_EQ(record.servicePack.back(), '\0');
    EXPECT_EQ(std::string(record.servicePack.data()), "Linux 6.1.0, " + std::string(111, 'x') + "ä");
}

TEST(SystemVersion, RefusesARecordOfAnotherSize) {
    VersionRecord record;
    record.size = 156;
    EXPECT_FALSE(versionFrom("6.1.0", "", record));
}

} // namespace
} // namespace errors
