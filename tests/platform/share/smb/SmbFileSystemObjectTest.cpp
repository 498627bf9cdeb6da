// SPDX-FileCopyrightText: 2026 The qmClient authors
// SPDX-License-Identifier: GPL-3.0-or-later
#include "platform/share/smb/SmbFileSystemObject.h"

#include "tests/platform/share/smb/SmbTest.h"

#include <algorithm>
#include <fstream>
#include <random>

namespace share::testing {
namespace {

class SmbFileSystemObjectTest : public ::testing::Test {
protected:
    smb::SmbFileSystemObject& files() { return m_client.files(); }

    SambaServer m_samba;
    SmbClient m_client{m_samba.port()};
};

std::string contentOf(const std::string& path) {
    std::ifstream stream(path, std::ios::binary);
    return {std::istreambuf_iterator<char>(stream), std::istreambuf_iterator<char>()};
}

std::string randomText(std::size_t size) {
    std::mt19937 generator(7);
    std::string text(size, '\0');
    std::ranges::generate(text, [&generator] { return static_cast<char>(generator() & 0xFFU); });
    return text;
}

TEST_F(SmbFileSystemObjectTest, FindsFilesAndFoldersWithoutCase) {
    m_samba.share().makeFile("MBX/7/qmLog.mdb");
    EXPECT_TRUE(files().FolderExists(onShare("")));
    EXPECT_TRUE(files().FolderExists(onShare("mbx\\7")));
    EXPECT_TRUE(files().FileExists(onShare("mbx\\7\\QMLOG.MDB")));
    EXPECT_FALSE(files().FileExists(onShare("MBX\\7")));
    EXPECT_FALSE(files().FolderExists(onShare("MBX\\7\\qmLog.mdb")));
    EXPECT_FALSE(files().FileExists(onShare("MBX\\8\\qmLog.mdb")));
    EXPECT_FALSE(files().FileExists("no network name"));
}

TEST_F(SmbFileSystemObjectTest, ListsSubFoldersOnly) {
    m_samba.share().makeFile("MBX/7/qmLog.mdb");
    m_samba.share().makeFolder("MBX/12");
    m_samba.share().makeFile("MBX/file");
    std::vector<std::string> names = files().SubFolders(onShare("MBX"));
    std::ranges::sort(names);
    EXPECT_EQ(names, (std::vector<std::string>{"12", "7"}));
}

TEST_F(SmbFileSystemObjectTest, ListsMoreFoldersThanOnePacketHolds) {
    const std::string longName(200, 'n');
    for (int i = 0; i < 1'000; ++i)
        m_samba.share().makeFolder("MBX/" + longName + std::to_string(i));
    std::vector<std::string> names = files().SubFolders(onShare("MBX"));
    std::ranges::sort(names);
    EXPECT_EQ(std::unique(names.begin(), names.end()) - names.begin(), 1'000);
}

TEST_F(SmbFileSystemObjectTest, ReadsAnywhereInAFileAndShortOnlyAtItsEnd) {
    const std::string content = randomText(300'000);
    m_samba.share().makeFile("big", content);
    const auto file = files().openFile(onShare("BIG"), OpenMode::Read);
    EXPECT_EQ(file->size(), content.size());
    std::vector<std::byte> buffer(200'000);
    EXPECT_EQ(file->read(70'001, buffer), buffer.size());
    EXPECT_EQ(buffer, bytesOf(std::string_view(content).substr(70'001, buffer.size())));
    EXPECT_EQ(file->read(299'990, buffer), 10U);
    EXPECT_EQ(file->read(300'000, buffer), 0U);
    EXPECT_EQ(file->read(1'000'000'000'000, buffer), 0U);
    EXPECT_ERROR(basic::kInvalidProcedureCall, file->read(~std::uint64_t{0}, buffer));
}

TEST_F(SmbFileSystemObjectTest, WritesAnywhereInAFile) {
    const std::string content = randomText(150'000);
    const std::string place = m_samba.share().makeFile("data", std::string(10, '-'));
    {
        const auto file = files().openFile(onShare("data"), OpenMode::ReadWrite);
        file->write(5, bytesOf(content));
        file->sync();
        EXPECT_EQ(file->size(), 150'005U);
    }
    EXPECT_EQ(contentOf(place), "-----" + content);
}

TEST_F(SmbFileSystemObjectTest, SeesAFileGrow) {
    const std::string place = m_samba.share().makeFile("log", "12345");
    const auto file = files().openFile(onShare("log"), OpenMode::Read);
    EXPECT_EQ(file->size(), 5U);
    std::ofstream(place, std::ios::app) << "678";
    EXPECT_EQ(file->size(), 8U);
}

TEST_F(SmbFileSystemObjectTest, CreatesAFileThatIsNotThereYet) {
    files().openFile(onShare("new"), OpenMode::Create)->write(0, bytesOf("abc"));
    EXPECT_EQ(contentOf(m_samba.share().path("new")), "abc");
    EXPECT_ERROR(basic::kPathFileAccess, files().openFile(onShare("NEW"), OpenMode::Create));
    EXPECT_EQ(contentOf(m_samba.share().path("new")), "abc");
}

TEST_F(SmbFileSystemObjectTest, NumbersWhatIsMissing) {
    m_samba.share().makeFile("MBX/file");
    EXPECT_ERROR(basic::kFileNotFound, files().openFile(onShare("MBX\\none"), OpenMode::Read));
    EXPECT_ERROR(basic::kPathNotFound, files().openFile(onShare("none\\none"), OpenMode::Read));
    EXPECT_ERROR(basic::kPathNotFound, files().openFile(onShare("none\\none"), OpenMode::Create));
    EXPECT_ERROR(basic::kPathFileAccess, files().openFile(onShare("MBX"), OpenMode::Read));
    EXPECT_ERROR(basic::kPathNotFound, files().SubFolders(onShare("none")));
    EXPECT_ERROR(basic::kPathNotFound, files().SubFolders(onShare("MBX\\file")));
    EXPECT_ERROR(basic::kFileNotFound, files().DeleteFile(onShare("MBX\\*.wav"), true));
    EXPECT_ERROR(basic::kPathNotFound, files().DeleteFile(onShare("none\\*.wav"), true));
    EXPECT_ERROR(basic::kPathNotFound, files().openFile("\\\\srv01\\NoShare\\x", OpenMode::Read));
}

TEST_F(SmbFileSystemObjectTest, TakesNamesWithUmlautsAndSigns) {
    const std::string name = "M\xC3\xBCller & S\xC3\xB6hne 100% #1;@+=[x]";
    m_samba.share().makeFile("MBX/" + name + "/\xE2\x82\xAC.txt", "abc");
    EXPECT_EQ(files().SubFolders(onShare("MBX")), std::vector<std::string>{name});
    const auto file = files().openFile(onShare("MBX\\m\xC3\x9CLLER" + name.substr(7) + "\\\xE2\x82\xAC.TXT"),
                                       OpenMode::Read);
    EXPECT_EQ(file->size(), 3U);
}

TEST_F(SmbFileSystemObjectTest, DeletesByPatternAndLeavesTheRest) {
    for (const char* name : {"MBX/7/a.wav", "MBX/7/B.WAV", "MBX/7/qmLog.mdb", "MBX/7/sub.wav/x"})
        m_samba.share().makeFile(name);
    files().DeleteFile(onShare("MBX\\7\\*.wav"), false);
    EXPECT_FALSE(std::filesystem::exists(m_samba.share().path("MBX/7/a.wav")));
    EXPECT_FALSE(std::filesystem::exists(m_samba.share().path("MBX/7/B.WAV")));
    EXPECT_TRUE(std::filesystem::exists(m_samba.share().path("MBX/7/qmLog.mdb")));
    EXPECT_TRUE(std::filesystem::exists(m_samba.share().path("MBX/7/sub.wav/x")));
}

TEST_F(SmbFileSystemObjectTest, ReadsAFileThatOthersAreReadingAndDoesNotKeepThemOut) {
    m_samba.share().makeFile("log", "abc");
    SmbClient other(m_samba.port());
    const auto first = files().openFile(onShare("log"), OpenMode::Read);
    const auto second = other.files().openFile(onShare("log"), OpenMode::Read);
    EXPECT_EQ(second->size(), 3U);
}

TEST_F(SmbFileSystemObjectTest, KeepsNobodyFromWritingWhatItReads) {
    m_samba.share().makeFile("log", "abc");
    m_samba.share().makeFile("longer", "abcdef");
    const auto file = files().openFile(onShare("log"), OpenMode::Read);
    EXPECT_TRUE(m_samba.runClient("put " + m_samba.share().path("longer") + " log"));
    EXPECT_EQ(file->size(), 6U);
}

TEST_F(SmbFileSystemObjectTest, HasAFileAloneWhileItWrites) {
    m_samba.share().makeFile("log", "abc");
    SmbClient other(m_samba.port());
    {
        const auto file = files().openFile(onShare("log"), OpenMode::Exclusive);
        EXPECT_TRUE(file->excludesOthers());
        EXPECT_TRUE(file->lock(0x10000001, 255, LockKind::Exclusive));
        EXPECT_ERROR(basic::kFileAlreadyOpen, other.files().openFile(onShare("log"), OpenMode::Read));
    }
    const auto file = other.files().openFile(onShare("log"), OpenMode::Read);
    EXPECT_FALSE(file->excludesOthers());
    EXPECT_FALSE(file->lock(0x10000001, 255, LockKind::Exclusive));
    EXPECT_ERROR(basic::kFileAlreadyOpen, files().openFile(onShare("log"), OpenMode::ReadWrite));
    EXPECT_ERROR(basic::kFileAlreadyOpen, files().openFile(onShare("log"), OpenMode::Exclusive));
}

TEST_F(SmbFileSystemObjectTest, DeletesReadOnlyFilesOnlyByForceAndTheOthersInAnyCase) {
    const std::string readOnly = m_samba.share().makeFile("a.wav");
    const std::string ordinary = m_samba.share().makeFile("b.wav");
    ASSERT_TRUE(m_samba.runClient("setmode a.wav +r"));
    EXPECT_ERROR(basic::kPermissionDenied, files().DeleteFile(onShare("*.wav"), false));
    EXPECT_TRUE(std::filesystem::exists(readOnly));
    EXPECT_FALSE(std::filesystem::exists(ordinary));
    files().DeleteFile(onShare("*.wav"), true);
    EXPECT_FALSE(std::filesystem::exists(readOnly));
}

TEST(SmbReadOnlyShare, IsReadAndNotWritten) {
    SambaServer readOnly({.ofShare = "read only = yes"});
    readOnly.share().makeFile("log", "abc");
    SmbClient client(readOnly.port());
    EXPECT_ERROR(basic::kPermissionDenied, client.files().openFile(onShare("log"), OpenMode::ReadWrite));
    EXPECT_ERROR(basic::kPermissionDenied, client.files().DeleteFile(onShare("log"), true));
    EXPECT_EQ(client.files().openFile(onShare("log"), OpenMode::Read)->size(), 3U);
}

} // namespace
} // namespace share::testing
