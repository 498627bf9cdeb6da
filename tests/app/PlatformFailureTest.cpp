// SPDX-FileCopyrightText: 2026 The qmClient authors
// SPDX-License-Identifier: GPL-3.0-or-later
//
// What the platform refuses arrives at the error handler with its number and with what it was about.
#include "app/Commands.h"
#include "tests/app/MainWorld.h"

#include <algorithm>
#include <filesystem>
#include <limits>
#include <memory>

namespace app {
namespace {

class PlatformFailureTest : public MainWorld {
protected:
    // Of the procedure's first report.
    void expectReport(std::int32_t number, const std::string& procedure, const std::string& about) const {
        const auto& reports = errorHandler.reports;
        const auto report = std::find_if(reports.begin(), reports.end(),
                                         [&](const auto& each) { return each.procedure == procedure; });
        ASSERT_NE(report, reports.end());
        EXPECT_EQ(report->number, number);
        EXPECT_NE(report->description.find(about), std::string::npos) << report->description;
    }
};

TEST_F(PlatformFailureTest, MemoryThatIsNotThereIsSeven) {
    Commands commands(errorHandler);
    volatile std::size_t size = std::numeric_limits<std::size_t>::max() / 4;
    commands.add("miSPlay", [&] { const std::unique_ptr<char[]> room(new char[size]); });
    commands.ab_ToolClick("miSPlay");
    expectReport(7, "ab_ToolClick", "Out of memory");
}

TEST_F(PlatformFailureTest, ASettingsFileThatCannotBeReadIsNamed) {
    folder.makeFolder("share/MBX");
    folder.makeFolder("registry.reg");
    load();
    expectReport(75, "LoadConfig", "registry.reg");
}

TEST_F(PlatformFailureTest, ADamagedDatabaseIsNamedAsTheServerKnowsIt) {
    configure({12});
    mailbox(12).append(5);
    load();
    std::filesystem::resize_file(mailbox(12).path(), 3 * 4096);
    tick();
    expectReport(-2147467259, "mTimer_ThatTime", R"(\\srv01\Quillamar_0$\MBX\12\qmLog.mdb)");
}

// The share goes away between the opening of a connection and its first statement.
TEST_F(PlatformFailureTest, AShareThatGoesAwayIsAPathThatIsNotFound) {
    configure({12});
    mailbox(12).append(5);
    load();
    const auto connection = common.GetMBXCon(12, *window->state().config);
    ASSERT_NE(connection, nullptr);
    removeShare();
    try {
        connection->Execute("SELECT COUNT(*) FROM CallLog");
        FAIL() << "counted";
    } catch (const basic::RuntimeError& error) {
        EXPECT_EQ(error.number(), 76);
        EXPECT_NE(error.description().find(R"(\\srv01\Quillamar_0$\MBX\12\qmLog.mdb)"), std::string::npos)
            << error.description();
    }
}

} // namespace
} // namespace app
