// SPDX-FileCopyrightText: 2026 The qmClient authors
// SPDX-License-Identifier: GPL-3.0-or-later
// Any text as a statement over a small database: it is answered or ends in a RuntimeError. What changes rows
// does so in a copy that is gone afterwards.
#include "platform/basic/RuntimeError.h"
#include "platform/jet/Connection.h"
#include "platform/jet/DatabaseBuilder.h"
#include "platform/jet/TableWriter.h"
#include "platform/share/MemoryFile.h"

#include <cstddef>
#include <cstdint>
#include <cstdlib>

namespace {

constexpr std::string_view kConnection = "Provider=Microsoft.Jet.OLEDB.4.0;Data Source=\\\\s\\x\\qmLog.mdb";
constexpr basic::Date kMadeOn{45000};
constexpr std::size_t kMaximumSize = 4096;

class OneDatabase final : public share::FileSystemObject {
public:
    OneDatabase() {
        share::MemoryFile file({});
        jet::createDatabase(file, kMadeOn);
        jet::createTable(file, spec(), kMadeOn);
        jet::TableWriter writer(file, "CallLog");
        const std::vector<basic::Variant> first{
            basic::Null(), std::string("A1"), kMadeOn, std::int32_t{12}, true, std::string("details")};
        writer.insert(first);
        const std::vector<basic::Variant> second{basic::Null(), basic::Null(), basic::Null(),
                                                 basic::Null(), false,         basic::Null()};
        writer.insert(second);
        writer.flush();
        m_bytes = file.bytes();
    }

    bool FileExists(std::string_view) override { return true; }
    bool FolderExists(std::string_view) override { return false; }
    std::vector<std::string> SubFolders(std::string_view) override { return {}; }
    void DeleteFile(std::string_view, bool) override { std::abort(); }
    std::unique_ptr<share::File> openFile(std::string_view path, share::OpenMode) override {
        const bool isLockFile = path.ends_with(".ldb");
        return std::make_unique<share::MemoryFile>(isLockFile ? std::vector<std::byte>() : m_bytes);
    }

private:
    static jet::TableSpec spec() {
        using jet::ColumnType;
        return {.name = "CallLog",
                .columns = {{.name = "ID", .type = ColumnType::Long, .autonumber = true},
                            {.name = "CallID", .type = ColumnType::Text, .size = 50},
                            {.name = "CallDate", .type = ColumnType::Date},
                            {.name = "MessageLength", .type = ColumnType::Long},
                            {.name = "Answered", .type = ColumnType::Boolean},
                            {.name = "CallDetails", .type = ColumnType::Memo}},
                .indexes = {}};
    }

    std::vector<std::byte> m_bytes;
};

void executeAndRead(jet::Connection& connection, std::string_view statement) {
    const auto records = connection.Execute(statement);
    for (; records->State() != 0 && !records->eof(); records->MoveNext())
        for (std::size_t i = 0; i < records->fieldCount(); ++i)
            records->Field(i);
}

} // namespace

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
    static OneDatabase files;
    static jet::Engine engine(files, [](int) {});
    if (size > kMaximumSize)
        return 0;
    jet::Connection connection(engine);
    connection.Open(kConnection);
    try {
        executeAndRead(connection, {reinterpret_cast<const char*>(data), size});
    } catch (const basic::RuntimeError&) { // NOLINT(bugprone-empty-catch): the expected end of bad text
    }
    return 0;
}
