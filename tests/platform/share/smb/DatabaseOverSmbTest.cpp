// SPDX-FileCopyrightText: 2026 The qmClient authors
// SPDX-License-Identifier: GPL-3.0-or-later
#include "platform/jet/Connection.h"
#include "platform/share/LocalFile.h"
#include "platform/share/LocalFileSystemObject.h"
#include "tests/platform/share/smb/SmbTest.h"
#include "tools/demo/BenchDatabase.h"

namespace share::testing {
namespace {

constexpr std::uint32_t kRows = 3'000;
constexpr const char* kCount = "SELECT COUNT(*) FROM CallLog";
constexpr const char* kAllCalls =
    "SELECT *, MessageLength & 's' AS MessageLengthS FROM CallLog ORDER BY ID DESC";

// A call log on the server's share, and the way to read it there and here.
class DatabaseOverSmbTest : public ::testing::Test {
protected:
    DatabaseOverSmbTest() {
        m_samba.share().makeFolder("MBX/7");
        const auto file = LocalFile::open(place(), OpenMode::Create);
        demo::fillBenchDatabase(*file, kRows, demo::BenchRows::Calls);
    }
    std::string place() const { return m_samba.share().path("MBX/7/qmLog.mdb"); }

    using Row = std::vector<basic::Variant>;
    static std::vector<Row> rows(jet::Engine& engine, std::string_view statement) {
        jet::Connection connection(engine);
        connection.Open("Provider=Microsoft.Jet.OLEDB.4.0;Data Source=" + onShare("MBX\\7\\qmLog.mdb"));
        const auto records = connection.Execute(statement);
        std::vector<Row> all;
        for (; !records->eof(); records->MoveNext()) {
            Row& row = all.emplace_back();
            for (std::size_t i = 0; i < records->fieldCount(); ++i)
                row.push_back(records->Field(i));
        }
        return all;
    }

    SambaServer m_samba;
    SmbClient m_client{m_samba.port()};
    jet::Engine m_remote{m_client.files()};
    LocalFileSystemObject m_folder{
        ShareResolver([this](std::string_view) { return std::optional(m_samba.share().path()); }, nullptr)};
    jet::Engine m_local{m_folder};
};

TEST_F(DatabaseOverSmbTest, HasTheSameRowsAsTheFileItself) {
    const std::vector<Row> remote = rows(m_remote, kAllCalls);
    EXPECT_EQ(remote.size(), kRows);
    EXPECT_TRUE(remote == rows(m_local, kAllCalls));
}

TEST_F(DatabaseOverSmbTest, IsCountedOverARestartOfTheServer) {
    const Row expected{static_cast<std::int32_t>(kRows)};
    EXPECT_TRUE(rows(m_remote, kCount) == std::vector<Row>(1, expected));
    m_samba.kill();
    EXPECT_ERROR(basic::kPathNotFound, rows(m_remote, kCount));
    m_samba.start();
    m_client.letPass(std::chrono::seconds(1));
    EXPECT_TRUE(rows(m_remote, kCount) == std::vector<Row>(1, expected));
}

TEST_F(DatabaseOverSmbTest, IsNotCountedWhileAnotherHasItAlone) {
    SmbClient other(m_samba.port());
    {
        const auto alone = other.files().openFile(onShare("MBX\\7\\qmLog.mdb"), OpenMode::ReadWrite);
        EXPECT_ERROR(basic::kFileAlreadyOpen, rows(m_remote, kCount));
    }
    EXPECT_EQ(rows(m_remote, kCount).size(), 1U);
}

TEST_F(DatabaseOverSmbTest, IsCountedAgainAfterItsFolderWasAway) {
    EXPECT_EQ(rows(m_remote, kCount).size(), 1U);
    std::filesystem::rename(m_samba.share().path("MBX/7"), m_samba.share().path("MBX/gone"));
    EXPECT_ERROR(basic::kPathNotFound, rows(m_remote, kCount));
    std::filesystem::rename(m_samba.share().path("MBX/gone"), m_samba.share().path("MBX/7"));
    EXPECT_EQ(rows(m_remote, kCount).size(), 1U);
}

} // namespace
} // namespace share::testing
