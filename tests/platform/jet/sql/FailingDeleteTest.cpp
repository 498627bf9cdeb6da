// SPDX-FileCopyrightText: 2026 The qmClient authors
// SPDX-License-Identifier: GPL-3.0-or-later
#include "tests/platform/jet/sql/SharedDatabase.h"
#include "tests/platform/share/ExpectError.h"

#include <iostream>

namespace jet::test {
namespace {

using share::testing::FaultPlan;
using share::testing::faultyFile;
using share::testing::FaultyFileSystem;

constexpr int kCalls = 30;

struct Fault {
    const char* name;
    std::int32_t error;
    bool writesHalf;
    bool failsFromThere;
};

// The whole command's way to the database, with one call to the file system failing: every one, one after the
// other. What each failure leaves must be sound, and the same command must then succeed.
class FailingDelete : public ::testing::TestWithParam<Fault> {
protected:
    // Answers the number of the error, 0 for none.
    static std::int32_t deleteAll(share::FileSystemObject& files) {
        Engine engine(files, [](int) {}, {.tries = 2, .sleep = [](std::chrono::milliseconds) {}});
        try {
            Connection connection(engine);
            connection.Open(SharedDatabase::kConnection);
            connection.BeginTrans();
            connection.Execute("DELETE FROM CallLog");
            connection.CommitTrans();
            return 0;
        } catch (const basic::RuntimeError& error) {
            return error.number();
        }
    }

    void expectWhole() const {
        const std::size_t rows = m_database.rowCount();
        EXPECT_TRUE(rows == 0 || rows == kCalls) << rows;
        EXPECT_TRUE(m_database.isSound());
    }

    SharedDatabase m_database{callLogDatabase(kCalls)};
};

TEST_P(FailingDelete, LeavesTheDatabaseWholeAndCanBeTriedAgain) {
    const FileImage before = m_database.bytes();
    FaultPlan counter;
    FaultyFileSystem counted(m_database.files, counter);
    ASSERT_EQ(deleteAll(counted), 0);
    const int calls = counter.calls;
    int failures = 0;
    for (int failAt = 1; failAt <= calls; ++failAt) {
        SCOPED_TRACE(failAt);
        m_database.setBytes(before);
        FaultPlan plan;
        plan.failAt = failAt;
        plan.error = GetParam().error;
        plan.writesHalf = GetParam().writesHalf;
        plan.failsFromThere = GetParam().failsFromThere;
        FaultyFileSystem files(m_database.files, plan);
        const std::int32_t error = deleteAll(files);
        EXPECT_TRUE(error == 0 || error == GetParam().error) << error;
        failures += error == 0 ? 0 : 1;
        EXPECT_EQ(plan.openFiles, 0);
        expectWhole();
        EXPECT_EQ(deleteAll(m_database.files), 0);
        EXPECT_EQ(m_database.rowCount(), 0U);
        EXPECT_TRUE(m_database.isSound());
    }
    // Giving a lock back may fail without a word: closing the file gives it back as well.
    EXPECT_GE(failures, calls - 2);
    std::cout << "injected failures: " << calls << ", reported: " << failures << "\n";
}

INSTANTIATE_TEST_SUITE_P(Faults, FailingDelete,
                         ::testing::Values(Fault{"DeviceError", basic::kDeviceIoError, false, false},
                                           Fault{"ShortWriteOnAFullDisk", basic::kDiskFull, true, false},
                                           Fault{"ShareGone", basic::kPathNotFound, false, true},
                                           Fault{"PermissionDenied", basic::kPermissionDenied, false, false}),
                         [](const auto& fault) { return std::string(fault.param.name); });

// What was written before the switch is taken back. Only of the switch itself nobody knows whether it was
// carried out, so what it refers to stays.
TEST(FailedDelete, LeavesNoTraceWhenItFailsBeforeTheSwitch) {
    SharedDatabase database(refilledDatabase(kCalls));
    const FileImage before = database.bytes();
    FaultPlan counter;
    emptyLog(*faultyFile(std::make_unique<RecordingFile>(before), counter));
    int unchanged = 0;
    int empty = 0;
    for (int failAt = 1; failAt <= counter.calls; ++failAt) {
        database.setBytes(before);
        FaultPlan plan;
        plan.failAt = failAt;
        const auto file =
            faultyFile(share::LocalFile::open(database.place(), share::OpenMode::ReadWrite), plan);
        EXPECT_ERROR(basic::kDeviceIoError, emptyLog(*file)) << failAt;
        unchanged += database.bytes() == before ? 1 : 0;
        empty += database.rowCount() == 0 ? 1 : 0;
    }
    EXPECT_GT(unchanged, 10);
    EXPECT_GT(empty, 5);
    EXPECT_EQ(unchanged + empty, counter.calls - 1);
}

} // namespace
} // namespace jet::test
