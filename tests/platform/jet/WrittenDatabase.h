// SPDX-FileCopyrightText: 2026 The qmClient authors
// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once
// What the tests of the writing half share: a database in a folder of its own, read back with our own reader
// and with the public tools, which are programs of another make.

#include "platform/basic/Variant.h"
#include "platform/jet/DatabaseBuilder.h"
#include "platform/jet/PageSource.h"
#include "platform/share/LocalFile.h"
#include "tests/platform/share/TemporaryFolder.h"

#include <memory>
#include <string>
#include <vector>

namespace jet::test {

using share::testing::TemporaryFolder;
using Values = std::vector<basic::Variant>;

// A Tuesday noon.
inline constexpr basic::Date kCreated{38143.5};

// Every row in the order of a scan, every column in the order of its number.
std::vector<Values> readRows(share::File& file, std::string_view table);
// The count of the table's definition.
std::uint32_t storedCount(share::File& file, std::string_view table);
// Throws what the Checker finds.
void checkDatabase(share::File& file);

// The standard output of a command, which must succeed.
std::string runTool(const std::string& command);

class WrittenDatabase {
public:
    WrittenDatabase();

    share::File& file() { return *m_file; }
    const std::string& path() const { return m_path; }
    void createTable(const TableSpec& spec) { jet::createTable(*m_file, spec, kCreated); }
    void insert(std::string_view table, const std::vector<Values>& rows);
    std::vector<Values> rows(std::string_view table) { return readRows(*m_file, table); }
    // The standard output of a program of mdbtools with the database's name put in after `options`.
    std::string tool(const std::string& program, const std::string& options,
                     const std::string& after = {}) const;
    // A table as JSON lines, the tools' form that tells Null from empty and text from numbers.
    std::string json(const std::string& table) const {
        return tool("mdb-json", "-T '%Y-%m-%d %H:%M:%S'", table);
    }

private:
    TemporaryFolder m_folder;
    std::string m_path;
    std::unique_ptr<share::File> m_file;
};

} // namespace jet::test
