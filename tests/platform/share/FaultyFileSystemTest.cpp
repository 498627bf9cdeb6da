// SPDX-FileCopyrightText: 2026 The qmClient authors
// SPDX-License-Identifier: GPL-3.0-or-later
#include "tests/platform/share/FaultyFileSystem.h"

#include "platform/share/LocalFileSystemObject.h"
#include "platform/share/MemoryFile.h"
#include "tests/platform/share/ExpectError.h"
#include "tests/platform/share/TemporaryFolder.h"

#include <array>

namespace share::testing {
namespace {

TEST(FaultyFileSystem, FailsExactlyTheCallThatIsNamed) {
    const TemporaryFolder folder;
    folder.makeFile("a.txt", "abcd");
    LocalFileSystemObject local(ShareResolver([&](std::string_view) { return folder.path(); }, {}));
    FaultPlan plan;
    plan.failAt = 2;
    FaultyFileSystem files(local, plan);
    const auto file = files.openFile(R"(\\srv\Quillamar_0$\a.txt)", OpenMode::Read);
    std::array<std::byte, 4> bytes{};
    EXPECT_ERROR(basic::kDeviceIoError, file->read(0, bytes));
    EXPECT_EQ(file->read(0, bytes), 4U);
    EXPECT_EQ(plan.calls, 3);
    EXPECT_EQ(plan.reads, 2);
    EXPECT_EQ(plan.openFiles, 1);
}

TEST(FaultyFileSystem, CutsAReadShort) {
    FaultPlan plan;
    plan.shortReadAt = 1;
    const auto file = faultyFile(std::make_unique<MemoryFile>(std::vector<std::byte>(10)), plan);
    std::array<std::byte, 8> bytes{};
    EXPECT_EQ(file->read(0, bytes), 4U);
    EXPECT_EQ(file->read(0, bytes), 8U);
}

} // namespace
} // namespace share::testing
