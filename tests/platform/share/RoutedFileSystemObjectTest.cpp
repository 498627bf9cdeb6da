// SPDX-FileCopyrightText: 2026 The qmClient authors
// SPDX-License-Identifier: GPL-3.0-or-later
#include "platform/share/RoutedFileSystemObject.h"

#include "platform/share/LocalFileSystemObject.h"
#include "tests/platform/share/ExpectError.h"
#include "tests/platform/share/TemporaryFolder.h"

#include <algorithm>

namespace share::testing {
namespace {

// Two servers' shares, of which one is mapped to a folder and the other one is not; the latter is played by
// another folder.
class RoutedFileSystemObjectTest : public ::testing::Test {
protected:
    static ShareResolver resolverFor(std::string server, std::string folder) {
        return {[server = std::move(server), folder = std::move(folder)](std::string_view name) {
                    return name == server ? std::optional(folder) : std::nullopt;
                },
                nullptr};
    }

    TemporaryFolder m_mapped;
    TemporaryFolder m_remote;
    LocalFileSystemObject m_folders{resolverFor("mapped", m_mapped.path())};
    LocalFileSystemObject m_servers{resolverFor("remote", m_remote.path())};
    RoutedFileSystemObject m_files{resolverFor("mapped", m_mapped.path()), m_folders, m_servers};
};

TEST_F(RoutedFileSystemObjectTest, AsksTheFolderWhereThereIsOneAndTheServerElse) {
    m_mapped.makeFile("MBX/7/here");
    m_remote.makeFile("MBX/8/there", "abc");
    EXPECT_TRUE(m_files.FileExists("\\\\mapped\\Quillamar_0$\\MBX\\7\\here"));
    EXPECT_TRUE(m_files.FolderExists("\\\\remote\\Quillamar_0$\\MBX\\8"));
    EXPECT_EQ(m_files.SubFolders("\\\\remote\\Quillamar_0$\\MBX"), std::vector<std::string>{"8"});
    EXPECT_EQ(m_files.openFile("\\\\remote\\Quillamar_0$\\MBX\\8\\there", OpenMode::Read)->size(), 3U);
    EXPECT_FALSE(m_files.FileExists("\\\\mapped\\Quillamar_0$\\MBX\\8\\there"));
}

TEST_F(RoutedFileSystemObjectTest, SendsPatternsTheSameWay) {
    m_mapped.makeFile("a.wav");
    m_remote.makeFile("a.wav");
    m_files.DeleteFile("\\\\remote\\Quillamar_0$\\*.wav", false);
    EXPECT_TRUE(m_files.FileExists("\\\\mapped\\Quillamar_0$\\a.wav"));
    EXPECT_FALSE(m_files.FileExists("\\\\remote\\Quillamar_0$\\a.wav"));
}

TEST_F(RoutedFileSystemObjectTest, RefusesWhatIsNoNetworkPath) {
    EXPECT_FALSE(m_files.FileExists("\\\\\\Quillamar_0$"));
    EXPECT_ERROR(basic::kPathNotFound, m_files.openFile("/etc/passwd", OpenMode::Read));
}

} // namespace
} // namespace share::testing
