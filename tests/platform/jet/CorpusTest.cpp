// SPDX-FileCopyrightText: 2026 The qmClient authors
// SPDX-License-Identifier: GPL-3.0-or-later
// Databases of other makers: with QMJET_CORPUS naming a folder, every Jet 4 file below it is read completely
// and held against all rules. Files of other formats must be refused by name. Without it the test is skipped.

#include "platform/jet/Checker.h"
#include "platform/jet/Database.h"
#include "platform/share/LocalFile.h"
#include "tests/platform/jet/FailureOf.h"

#include <gmock/gmock.h>

#include <cstdlib>
#include <filesystem>
#include <iostream>

namespace jet {
namespace {

void checkFile(const std::string& path) {
    Database database(share::LocalFile::open(path, share::OpenMode::Read));
    const CheckReport report = Checker(database.pages()).run();
    std::cout << path << ": " << report.tables << " tables, " << report.rows << " rows, " << report.longValues
              << " long values, " << report.indexEntries << " index entries\n";
    EXPECT_GE(report.tables, 4U) << path;
}

TEST(Corpus, IsReadCompletelyAndWithoutInconsistency) {
    const char* folder = std::getenv("QMJET_CORPUS");
    if (folder == nullptr)
        GTEST_SKIP() << "QMJET_CORPUS is not set: corpus not read";
    std::size_t files = 0;
    for (const auto& entry : std::filesystem::recursive_directory_iterator(folder)) {
        const std::string extension = entry.path().extension().string();
        if (extension != ".mdb" && extension != ".accdb")
            continue;
        ++files;
        const std::string failure = test::failureOf([&] { checkFile(entry.path().string()); });
        EXPECT_THAT(failure, testing::AnyOf("(no error)", testing::HasSubstr("are not supported")));
    }
    EXPECT_GT(files, 0U) << folder;
}

} // namespace
} // namespace jet
