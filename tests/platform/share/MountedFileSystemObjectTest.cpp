// SPDX-FileCopyrightText: 2026 The qmClient authors
// SPDX-License-Identifier: GPL-3.0-or-later
#include "platform/share/MountedFileSystemObject.h"

#include "platform/share/ConnectionLost.h"
#include "platform/share/LocalFile.h"
#include "tests/platform/share/DirectedWaiter.h"
#include "tests/platform/share/ExpectError.h"
#include "tests/platform/share/HangingMount.h"

#include <gmock/gmock.h>

#include <array>
#include <cerrno>
#include <filesystem>
#include <vector>

namespace share::testing {
namespace {

using namespace std::chrono_literals;
using ::testing::Each;
using ::testing::ElementsAre;
using ::testing::SizeIs;
using ::testing::UnorderedElementsAre;

std::string unc(std::string_view below) {
    return "\\\\srv\\Quillamar_0$\\" + std::string(below);
}

class MountedFileSystemObjectTest : public ::testing::Test {
protected:
    std::unique_ptr<File> openDatabase(OpenMode mode) {
        m_mount.folder.makeFile("MBX/7/qmLog.mdb", "0123456789");
        return m_files.openFile(unc("mbx\\7\\QMLOG.mdb"), mode);
    }
    // A call beyond the question whether the mount is there finds out that nobody answers.
    void hangAndNotice() {
        m_mount.hang();
        m_waiter.patience = 1;
        EXPECT_FALSE(m_files.FolderExists(unc("MBX")));
        m_mount.awaitHangingCall();
        m_waiter.patience = 100;
    }
    // Others have the lock as long as they have the file.
    bool isLocked(const std::string& path) {
        return !LocalFile::open(path, OpenMode::ReadWrite)->lock(100, 1, LockKind::Exclusive);
    }

    HangingMount m_mount;
    DirectedWaiter m_waiter;
    MountedFileSystemObject m_files{m_mount.resolver(), m_waiter};
};

TEST_F(MountedFileSystemObjectTest, AnswersWhatTheMountedFolderHolds) {
    m_mount.folder.makeFile("MBX/7/a.wav");
    m_mount.folder.makeFile("MBX/7/b.wav");
    m_mount.folder.makeFolder("MBX/8");
    EXPECT_TRUE(m_files.FileExists(unc("MBX\\7\\A.WAV")));
    EXPECT_FALSE(m_files.FileExists(unc("MBX\\7")));
    EXPECT_TRUE(m_files.FolderExists(unc("MBX\\7")));
    EXPECT_THAT(m_files.SubFolders(unc("MBX")), UnorderedElementsAre("7", "8"));
    m_files.DeleteFile(unc("MBX\\7\\*.wav"), false);
    EXPECT_FALSE(std::filesystem::exists(m_mount.folder.path("MBX/7/a.wav")));
    EXPECT_FALSE(std::filesystem::exists(m_mount.folder.path("MBX/7/b.wav")));
}

TEST_F(MountedFileSystemObjectTest, FailsAsTheFolderDoes) {
    EXPECT_FALSE(m_files.FileExists("no path"));
    EXPECT_ERROR(basic::kPathNotFound, m_files.SubFolders(unc("missing")));
    EXPECT_ERROR(basic::kFileNotFound, m_files.DeleteFile(unc("*.wav"), false));
    EXPECT_ERROR(basic::kFileNotFound, m_files.openFile(unc("missing"), OpenMode::Read));
}

TEST_F(MountedFileSystemObjectTest, APathWhoseServerIsGoneCannotBeReached) {
    const MountInfo broken = [table = m_mount.resolver().mountInfo(), here = std::this_thread::get_id()] {
        if (std::this_thread::get_id() != here)
            throw basic::errorFromErrno(EHOSTDOWN, "find", "the mount");
        return table();
    };
    MountedFileSystemObject files(ShareResolver(nullptr, broken), m_waiter);
    EXPECT_ERROR(basic::kPathNotFound, files.openFile(unc("a.wav"), OpenMode::Read));
    EXPECT_ERROR(basic::kPathNotFound, files.SubFolders(unc("MBX")));
}

TEST_F(MountedFileSystemObjectTest, ReadsAFile) {
    const auto file = openDatabase(OpenMode::Read);
    EXPECT_EQ(file->name(), unc("mbx\\7\\QMLOG.mdb"));
    EXPECT_FALSE(file->excludesOthers());
    EXPECT_EQ(file->size(), 10U);
    std::array<std::byte, 4> bytes{};
    EXPECT_EQ(file->read(8, bytes), 2U);
    EXPECT_EQ(bytes, (std::array{std::byte{'8'}, std::byte{'9'}, std::byte{}, std::byte{}}));
}

TEST_F(MountedFileSystemObjectTest, WritesAndLocksAFile) {
    const auto file = openDatabase(OpenMode::ReadWrite);
    const auto other = m_files.openFile(file->name(), OpenMode::ReadWrite);
    file->write(9, std::array{std::byte{'x'}, std::byte{'y'}});
    file->sync();
    EXPECT_EQ(std::filesystem::file_size(m_mount.folder.path("MBX/7/qmLog.mdb")), 11U);
    EXPECT_TRUE(file->lock(100, 1, LockKind::Exclusive));
    EXPECT_FALSE(other->lock(100, 1, LockKind::Exclusive));
    file->unlock(100, 1);
    EXPECT_TRUE(other->lock(100, 1, LockKind::Exclusive));
}

TEST_F(MountedFileSystemObjectTest, AFileIsClosedWhenItsObjectIsGone) {
    auto file = openDatabase(OpenMode::ReadWrite);
    ASSERT_TRUE(file->lock(100, 1, LockKind::Exclusive));
    file.reset();
    EXPECT_TRUE(openDatabase(OpenMode::ReadWrite)->lock(100, 1, LockKind::Exclusive));
}

TEST_F(MountedFileSystemObjectTest, FindsOutSoonThatNobodyAnswersBeforeItWaitsForNames) {
    m_files.FolderExists(unc("MBX"));
    EXPECT_THAT(m_waiter.waits, ElementsAre(3s, 30s));
}

// Thousands of messages take longer than any one deadline.
TEST_F(MountedFileSystemObjectTest, GivesEachFileThatItDeletesItsOwnTime) {
    m_mount.folder.makeFile("MBX/7/a.wav");
    m_mount.folder.makeFile("MBX/7/b.wav");
    m_files.DeleteFile(unc("MBX\\7\\*.wav"), true);
    EXPECT_THAT(m_waiter.waits, ElementsAre(3s, 30s, 3s, 3s));
}

TEST_F(MountedFileSystemObjectTest, AFileThatCannotBeDeletedKeepsNoOther) {
    m_mount.folder.makeFile("MBX/7/a.wav");
    m_mount.folder.makeFile("MBX/7/b.wav");
    std::filesystem::permissions(m_mount.folder.path("MBX/7/a.wav"), std::filesystem::perms::owner_read);
    EXPECT_ERROR(basic::kPermissionDenied, m_files.DeleteFile(unc("MBX\\7\\*.wav"), false));
    EXPECT_TRUE(std::filesystem::exists(m_mount.folder.path("MBX/7/a.wav")));
    EXPECT_FALSE(std::filesystem::exists(m_mount.folder.path("MBX/7/b.wav")));
}

TEST_F(MountedFileSystemObjectTest, ReadsAndWritesPieceByPiece) {
    const auto file = openDatabase(OpenMode::ReadWrite);
    m_waiter.waits.clear();
    std::vector<std::byte> bytes(150'000, std::byte{'a'});
    bytes.back() = std::byte{'z'};
    file->write(0, bytes);
    std::vector<std::byte> read(200'000);
    EXPECT_EQ(file->read(0, read), bytes.size());
    read.resize(bytes.size());
    EXPECT_EQ(read, bytes);
    EXPECT_THAT(m_waiter.waits, SizeIs(3 + 3));
    EXPECT_THAT(m_waiter.waits, Each(3s));
}

TEST_F(MountedFileSystemObjectTest, NothingIsThereWhileTheMountHangs) {
    m_mount.folder.makeFile("MBX/7/a.wav");
    hangAndNotice();
    EXPECT_FALSE(m_files.FileExists(unc("MBX\\7\\a.wav")));
    EXPECT_FALSE(m_files.FolderExists(unc("MBX")));
    EXPECT_ERROR(basic::kPathNotFound, m_files.SubFolders(unc("MBX")));
    EXPECT_ERROR(basic::kPathNotFound, m_files.DeleteFile(unc("MBX\\7\\*.wav"), true));
    EXPECT_ERROR(basic::kPathNotFound, m_files.openFile(unc("MBX\\7\\a.wav"), OpenMode::Read));
    EXPECT_EQ(m_mount.hangingCalls(), 1);
    m_mount.goOn();
    EXPECT_TRUE(std::filesystem::exists(m_mount.folder.path("MBX/7/a.wav")));
}

TEST_F(MountedFileSystemObjectTest, AFileWhoseCallHangsIsLostForGood) {
    const auto file = openDatabase(OpenMode::ReadWrite);
    m_mount.hang();
    m_waiter.patience = 0;
    EXPECT_THROW(file->lock(100, 1, LockKind::Shared), ConnectionLost);
    m_mount.goOn();
    EXPECT_EQ(m_waiter.awaitLast(), Waited::Ready);
    m_waiter.patience = 100;
    EXPECT_THROW(file->size(), ConnectionLost);
}

TEST_F(MountedFileSystemObjectTest, AnotherFileIsThereAgainWhenTheMountAnswers) {
    const auto file = openDatabase(OpenMode::Read);
    hangAndNotice();
    EXPECT_THROW(file->size(), ConnectionLost);
    m_mount.goOn();
    EXPECT_EQ(m_waiter.awaitLast(), Waited::Ready);
    EXPECT_EQ(file->size(), 10U);
}

// Otherwise somebody else could begin to write before what hangs is written.
TEST_F(MountedFileSystemObjectTest, ALockIsHeldUntilTheCallThatHangsReturns) {
    const auto file = openDatabase(OpenMode::ReadWrite);
    const std::string path = m_mount.folder.path("MBX/7/qmLog.mdb");
    auto locked = m_files.openFile(file->name(), OpenMode::ReadWrite);
    ASSERT_TRUE(locked->lock(100, 1, LockKind::Exclusive));
    hangAndNotice();
    EXPECT_THROW(locked->unlock(100, 1), ConnectionLost);
    locked.reset();
    EXPECT_TRUE(isLocked(path));
    m_mount.goOn();
    EXPECT_EQ(m_waiter.awaitLast(), Waited::Ready);
    EXPECT_FALSE(isLocked(path));
}

TEST_F(MountedFileSystemObjectTest, WaitsForNoThreadOnADiskOfThisMachine) {
    m_mount.folder.makeFile("a.wav", "abc");
    m_waiter.isCancelled = true;
    EXPECT_FALSE(m_files.FileExists(unc("a.wav")));
    MountedFileSystemObject onDisk(
        ShareResolver([this](std::string_view) { return std::optional(m_mount.folder.path()); },
                      [] { return "22 1 8:1 / / rw - ext4 /dev/sda1 rw\n"; }),
        m_waiter);
    EXPECT_TRUE(onDisk.FileExists(unc("a.wav")));
    EXPECT_EQ(onDisk.openFile(unc("a.wav"), OpenMode::Read)->size(), 3U);
}

// Another thread must not look into the settings.
TEST_F(MountedFileSystemObjectTest, AsksForTheMappingOnTheCallersOwnThread) {
    const std::string folder = m_mount.folder.path();
    std::vector<std::thread::id> asked;
    MountedFileSystemObject files(ShareResolver(
                                      [&](std::string_view) {
                                          asked.push_back(std::this_thread::get_id());
                                          return std::optional(folder);
                                      },
                                      m_mount.resolver().mountInfo()),
                                  m_waiter);
    m_mount.folder.makeFile("a.wav", "abc");
    EXPECT_EQ(files.openFile(unc("a.wav"), OpenMode::Read)->size(), 3U);
    EXPECT_THAT(asked, Each(std::this_thread::get_id()));
    EXPECT_FALSE(asked.empty());
}

TEST_F(MountedFileSystemObjectTest, SettingsThatCannotBeReadAreNoMissingFile) {
    MountedFileSystemObject files(ShareResolver(
                                      [](std::string_view) -> std::optional<std::string> {
                                          throw basic::RuntimeError(basic::kPathFileAccess);
                                      },
                                      nullptr),
                                  m_waiter);
    EXPECT_ERROR(basic::kPathFileAccess, files.FolderExists(unc("MBX")));
}

} // namespace
} // namespace share::testing
