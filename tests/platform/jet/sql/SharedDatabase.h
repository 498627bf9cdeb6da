// SPDX-FileCopyrightText: 2026 The qmClient authors
// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once
// A call log in a folder that stands for a server's share, reached through the engine as the client does it,
// and through files of its own as another program would.

#include "platform/jet/Connection.h"
#include "platform/share/LocalFile.h"
#include "platform/share/LocalFileSystemObject.h"
#include "tests/platform/jet/EmptyingScenario.h"
#include "tests/platform/jet/WrittenDatabase.h"
#include "tests/platform/share/DenyingFileSystem.h"
#include "tests/platform/share/FaultyFileSystem.h"

#include <functional>
#include <string>
#include <vector>

namespace jet::test {

class SharedDatabase {
public:
    static constexpr std::string_view kPath = R"(\\srv\Quillamar_0$\MBX\7\qmLog.mdb)";
    static constexpr std::string_view kConnection =
        "Provider=Microsoft.Jet.OLEDB.4.0;Jet OLEDB:Database Locking Mode=1;Data Source="
        R"(\\srv\Quillamar_0$\MBX\7\qmLog.mdb)";

    explicit SharedDatabase(const FileImage& image);

    std::string place() const { return m_folder.path("qmLog.mdb"); }
    std::string lockFilePlace() const { return m_folder.path("qmLog.ldb"); }
    FileImage bytes() const;
    void setBytes(const FileImage& image) const;
    std::size_t rowCount() const;
    bool isSound() const;
    // The output of mdb-json for a table.
    std::string json(const std::string& table) const;

    // The line of this machine's mounts for the folder, as if it were of another kind.
    void mountAs(std::string_view typeSourceAndOptions);

    share::LocalFileSystemObject files;

private:
    TemporaryFolder m_folder;
    std::string m_mounts;
};

} // namespace jet::test
