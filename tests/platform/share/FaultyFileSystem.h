// SPDX-FileCopyrightText: 2026 The qmClient authors
// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once
// Wraps another file system and counts the calls that reach it, also those to the files it opens. One of them
// can be made to fail with error 57 or another one, a failing write before or after half of it is done, and
// reads can be cut short. For running an operation again and again
// with call 1, 2, … N failing: every way out of it is then taken.

#include "platform/basic/ErrorNumbers.h"
#include "platform/share/FileSystemObject.h"

#include <memory>

namespace share::testing {

struct FaultPlan {
    int failAt = 0;              // number of the call that fails, counted from 1; 0: none
    int shortReadAt = 0;         // number of the call that, if it is a read, gets half of what it asked for
    int calls = 0;               // so far
    int reads = 0;               // of these, reads of a file
    int openFiles = 0;           // at the moment
    bool failsFromThere = false; // every call from failAt on fails
    bool writesHalf = false;     // a write that fails has written its first half
    std::int32_t error = basic::kDeviceIoError;
};

class FaultyFileSystem final : public FileSystemObject {
public:
    // Both must outlive it and the files it opens.
    FaultyFileSystem(FileSystemObject& behind, FaultPlan& plan) : m_behind(behind), m_plan(plan) {}

    bool FileExists(std::string_view path) override;
    bool FolderExists(std::string_view path) override;
    std::vector<std::string> SubFolders(std::string_view path) override;
    void DeleteFile(std::string_view pattern, bool force) override;
    std::unique_ptr<File> openFile(std::string_view path, OpenMode mode) override;

private:
    FileSystemObject& m_behind;
    FaultPlan& m_plan;
};

// The same for a single file.
std::unique_ptr<File> faultyFile(std::unique_ptr<File> behind, FaultPlan& plan);

} // namespace share::testing
