// SPDX-FileCopyrightText: 2026 The qmClient authors
// SPDX-License-Identifier: GPL-3.0-or-later
#include "tests/platform/jet/WrittenDatabase.h"

#include "platform/jet/Checker.h"
#include "platform/jet/TableScan.h"
#include "platform/jet/TableWriter.h"
#include "platform/jet/ValueDecoder.h"
#include "tests/platform/jet/StoredDefinition.h"

#include <array>
#include <cstdio>
#include <stdexcept>

namespace jet::test {

std::vector<Values> readRows(share::File& file, std::string_view table) {
    PageReader pages(file, 0);
    const TableDefinition definition = definitionOf(pages, table);
    TableScan scan(pages, definition, table);
    ValueDecoder decoder(pages);
    std::vector<Values> rows;
    while (scan.next()) {
        Values& row = rows.emplace_back();
        for (const Column& column : definition.columns)
            row.push_back(decoder.value(scan.row(), column));
    }
    return rows;
}

std::uint32_t storedCount(share::File& file, std::string_view table) {
    PageReader pages(file, 0);
    return definitionOf(pages, table).rowCount;
}

void checkDatabase(share::File& file) {
    PageReader pages(file, 0);
    Checker(pages).run();
}

std::string runTool(const std::string& command) {
    std::FILE* pipe = popen(command.c_str(), "r");
    if (pipe == nullptr)
        throw std::runtime_error("cannot run " + command);
    std::string output;
    std::array<char, 4096> buffer{};
    while (const std::size_t count = std::fread(buffer.data(), 1, buffer.size(), pipe))
        output.append(buffer.data(), count);
    if (pclose(pipe) != 0)
        throw std::runtime_error("failed: " + command);
    return output;
}

WrittenDatabase::WrittenDatabase()
    : m_path(m_folder.path("test.mdb")), m_file(share::LocalFile::open(m_path, share::OpenMode::Create)) {
    createDatabase(*m_file, kCreated);
}

void WrittenDatabase::insert(std::string_view table, const std::vector<Values>& rows) {
    TableWriter writer(*m_file, table);
    for (const Values& row : rows)
        writer.insert(row);
    writer.flush();
}

std::string WrittenDatabase::tool(const std::string& program, const std::string& options,
                                  const std::string& after) const {
    return runTool(program + " " + options + " '" + m_path + "' " + after);
}

} // namespace jet::test
