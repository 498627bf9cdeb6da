// SPDX-FileCopyrightText: 2026 The qmClient authors
// SPDX-License-Identifier: GPL-3.0-or-later
#include "platform/share/LocalFileSystemObject.h"

#include "tests/platform/share/ExpectError.h"
#include "tests/platform/share/TemporaryFolder.h"

#include <gmock/gmock.h>

#include <filesystem>

namespace share {
namespace {

using ::testing::IsEmpty;
using ::testing::UnorderedElementsAre;
namespace fs = std::filesystem;

class LocalFileSystemObjectTest : public ::testing::Test {
protected:
    static std::string unc(std::string_view below) { return "\\\\srv\\Quillamar_0$" + std::string(below); }
    bool isThere(std::string_view below) const { return fs::exists(m_folder.path(below)); }

    testing::TemporaryFolder m_folder;
    LocalFileSystemObject m_files{ShareResolver(
        [this](std::string_view server) {
            return server == "srv" ? std::optional<std::string>(m_folder.path()) : std::nullopt;
        },
        {})};
};

TEST_F(LocalFileSystemObjectTest, TellsFilesFromFolders) {
    m_folder.makeFile("MBX/7/qmLog.mdb");
    EXPECT_TRUE(m_files.FileExists(unc(R"(\MBX\7\qmLog.mdb)")));
    EXPECT_FALSE(m_files.FolderExists(unc(R"(\MBX\7\qmLog.mdb)")));
    EXPECT_TRUE(m_files.FolderExists(unc(R"(\MBX\7)")));
    EXPECT_FALSE(m_files.FileExists(unc(R"(\MBX\7)")));
    EXPECT_TRUE(m_files.FolderExists(unc("")));
    EXPECT_FALSE(m_files.FileExists(unc(R"(\MBX\8\qmLog.mdb)")));
}

TEST_F(LocalFileSystemObjectTest, ComparesNamesWithoutCase) {
    m_folder.makeFile("Mbx/7/QMLOG.MDB");
    m_folder.makeFile("Mbx/7/GRÜSSE.wav");
    EXPECT_TRUE(m_files.FileExists(unc(R"(\MBX\7\qmLog.mdb)")));
    EXPECT_TRUE(m_files.FileExists(unc(R"(\MBX\7\grüsse.WAV)")));
    EXPECT_EQ(m_files.openFile(unc(R"(\mbx\7\qmLog.mdb)"), OpenMode::Read)->name(),
              unc(R"(\mbx\7\qmLog.mdb)"));
}

TEST_F(LocalFileSystemObjectTest, PrefersTheNameInTheSameCase) {
    m_folder.makeFile("A.txt", "upper");
    m_folder.makeFile("a.txt", "low");
    EXPECT_EQ(m_files.openFile(unc(R"(\a.txt)"), OpenMode::Read)->size(), 3U);
    EXPECT_EQ(m_files.openFile(unc(R"(\A.txt)"), OpenMode::Read)->size(), 5U);
    EXPECT_EQ(m_files.openFile(unc(R"(\A.TXT)"), OpenMode::Read)->size(), 5U);
}

TEST_F(LocalFileSystemObjectTest, BadNamesAreMissingFilesAndNeverThrow) {
    m_folder.makeFile("MBX/7/a.wav");
    for (const char* path : {"", "\\\\", "\\\\srv", "\\\\\\Quillamar_0$",
                             "\\\\srv\\Quillamar_0$\\MBX\\..\\MBX", "\\\\srv\\Quillamar_0$\\MBX/7/a.wav",
                             "/etc/passwd", "\\\\srv\\other\\x", "\\\\gone\\Quillamar_0$\\MBX"}) {
        EXPECT_FALSE(m_files.FileExists(path)) << path;
        EXPECT_FALSE(m_files.FolderExists(path)) << path;
    }
}

TEST_F(LocalFileSystemObjectTest, SettingsThatCannotBeReadAreNoMissingFile) {
    LocalFileSystemObject files{ShareResolver(
        [](std::string_view) -> std::optional<std::string> {
            throw basic::RuntimeError(basic::kPathFileAccess, "registry.reg, line 3");
        },
        {})};
    EXPECT_ERROR(basic::kPathFileAccess, files.FileExists(unc(R"(\a.txt)")));
    EXPECT_ERROR(basic::kPathFileAccess, files.FolderExists(unc("")));
}

TEST_F(LocalFileSystemObjectTest, ComponentsFromDataNeverLeaveTheFolder) {
    const std::string secret = m_folder.makeFile("secret.wav");
    LocalFileSystemObject inner(
        ShareResolver([&](std::string_view) { return m_folder.makeFolder("inner"); }, {}));
    EXPECT_FALSE(inner.FileExists(unc(R"(\..\secret.wav)")));
    EXPECT_FALSE(inner.FileExists(unc(R"(\.. \secret.wav)")));
    EXPECT_FALSE(inner.FileExists(unc("\\../secret.wav")));
    EXPECT_ERROR(basic::kPathNotFound, inner.openFile(unc(R"(\..\secret.wav)"), OpenMode::Read));
    EXPECT_ERROR(basic::kPathNotFound, inner.DeleteFile(unc(R"(\..\*.wav)"), true));
    EXPECT_TRUE(fs::exists(secret));
}

TEST_F(LocalFileSystemObjectTest, FollowsTheLinksOfTheAdministrator) {
    const testing::TemporaryFolder elsewhere;
    elsewhere.makeFile("7/qmLog.mdb");
    fs::create_directory_symlink(elsewhere.path(), m_folder.path("MBX"));
    EXPECT_TRUE(m_files.FileExists(unc(R"(\MBX\7\qmLog.mdb)")));
}

TEST_F(LocalFileSystemObjectTest, ListsSubFoldersOnly) {
    m_folder.makeFolder("MBX/7");
    m_folder.makeFolder("MBX/Ärger");
    m_folder.makeFile("MBX/file");
    fs::create_directory_symlink(m_folder.path("MBX/7"), m_folder.path("MBX/8"));
    EXPECT_THAT(m_files.SubFolders(unc(R"(\mbx)")), UnorderedElementsAre("7", "8", "Ärger"));
    EXPECT_THAT(m_files.SubFolders(unc(R"(\MBX\7)")), IsEmpty());
}

TEST_F(LocalFileSystemObjectTest, SubFoldersOfAMissingFolderIsAnError) {
    EXPECT_ERROR(basic::kPathNotFound, m_files.SubFolders(unc(R"(\none)")));
    EXPECT_ERROR(basic::kPathNotFound, m_files.SubFolders(unc(R"(\none\below)")));
    EXPECT_ERROR(basic::kPathNotFound, m_files.SubFolders(R"(\\gone\Quillamar_0$\MBX)"));
}

TEST_F(LocalFileSystemObjectTest, DeletesByPatternWithoutCase) {
    for (const char* name : {"a.wav", "B.WAV", "c.wave", "d.txt"})
        m_folder.makeFile(name);
    m_folder.makeFolder("folder.wav");
    m_files.DeleteFile(unc(R"(\*.wav)"), false);
    EXPECT_FALSE(isThere("a.wav"));
    EXPECT_FALSE(isThere("B.WAV"));
    EXPECT_TRUE(isThere("c.wave"));
    EXPECT_TRUE(isThere("d.txt"));
    EXPECT_TRUE(isThere("folder.wav"));
}

TEST_F(LocalFileSystemObjectTest, PatternWithoutAMatchIsError53) {
    m_folder.makeFile("a.txt");
    m_folder.makeFolder("b.wav");
    EXPECT_ERROR(basic::kFileNotFound, m_files.DeleteFile(unc(R"(\*.wav)"), false));
    EXPECT_ERROR(basic::kFileNotFound, m_files.DeleteFile(unc(R"(\none.wav)"), false));
    EXPECT_ERROR(basic::kFileNotFound, m_files.DeleteFile(unc(R"(\b.wav)"), false));
}

TEST_F(LocalFileSystemObjectTest, ReadOnlyFileStaysAndDoesNotKeepTheOthers) {
    for (const char* name : {"a.wav", "b.wav", "c.wav"})
        m_folder.makeFile(name);
    fs::permissions(m_folder.path("b.wav"), fs::perms::owner_read);
    EXPECT_ERROR(basic::kPermissionDenied, m_files.DeleteFile(unc(R"(\*.wav)"), false));
    EXPECT_FALSE(isThere("a.wav"));
    EXPECT_TRUE(isThere("b.wav"));
    EXPECT_FALSE(isThere("c.wav"));
    m_files.DeleteFile(unc(R"(\*.wav)"), true);
    EXPECT_FALSE(isThere("b.wav"));
}

TEST_F(LocalFileSystemObjectTest, PlainNameDeletesOneFileOnly) {
    m_folder.makeFile("A.wav");
    m_folder.makeFile("a.wav");
    m_files.DeleteFile(unc(R"(\a.wav)"), false);
    EXPECT_TRUE(isThere("A.wav"));
    EXPECT_FALSE(isThere("a.wav"));
    m_files.DeleteFile(unc(R"(\a.wav)"), false);
    EXPECT_FALSE(isThere("A.wav"));
}

TEST_F(LocalFileSystemObjectTest, DeletesALinkAndNotWhatItLeadsTo) {
    const testing::TemporaryFolder elsewhere;
    fs::create_symlink(elsewhere.makeFile("kept"), m_folder.path("link.wav"));
    m_files.DeleteFile(unc(R"(\*.wav)"), false);
    EXPECT_FALSE(fs::is_symlink(m_folder.path("link.wav")));
    EXPECT_TRUE(fs::exists(elsewhere.path("kept")));
}

TEST_F(LocalFileSystemObjectTest, CreatesOnlyWhereNoNameInAnyCaseExists) {
    m_folder.makeFile("QMLOG.ldb");
    EXPECT_ERROR(basic::kPathFileAccess, m_files.openFile(unc(R"(\qmLog.ldb)"), OpenMode::Create));
    m_files.openFile(unc(R"(\new.ldb)"), OpenMode::Create);
    EXPECT_TRUE(isThere("new.ldb"));
    EXPECT_ERROR(basic::kPathNotFound, m_files.openFile(unc(R"(\none\new.ldb)"), OpenMode::Create));
}

TEST_F(LocalFileSystemObjectTest, OpeningAMissingFileIsError53) {
    EXPECT_ERROR(basic::kFileNotFound, m_files.openFile(unc(R"(\none)"), OpenMode::Read));
    EXPECT_ERROR(basic::kPathNotFound, m_files.openFile(unc(R"(\none\a)"), OpenMode::Read));
    EXPECT_ERROR(basic::kPathNotFound, m_files.openFile(R"(\\gone\Quillamar_0$\a)", OpenMode::Read));
}

} // namespace
} // namespace share
