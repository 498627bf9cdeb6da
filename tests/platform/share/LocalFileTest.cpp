// SPDX-FileCopyrightText: 2026 The qmClient authors
// SPDX-License-Identifier: GPL-3.0-or-later
#include "platform/share/LocalFile.h"

#include "tests/platform/share/ExpectError.h"
#include "tests/platform/share/TemporaryFolder.h"

#include <fcntl.h>
#include <sys/stat.h>
#include <unistd.h>

#include <array>
#include <filesystem>

namespace share {
namespace {

using testing::TemporaryFolder;

constexpr std::uint64_t kFarBeyondTheEnd = 0x1000'0001;

std::string textAt(File& file, std::uint64_t offset, std::size_t length) {
    std::string text(length, '\0');
    text.resize(file.read(offset, std::as_writable_bytes(std::span(text))));
    return text;
}

std::span<const std::byte> bytesOf(std::string_view text) {
    return std::as_bytes(std::span(text));
}

TEST(LocalFile, ReadsAtAnyPlace) {
    const TemporaryFolder folder;
    const auto file = LocalFile::open(folder.makeFile("a", "hello"), OpenMode::Read);
    EXPECT_EQ(textAt(*file, 1, 3), "ell");
    EXPECT_EQ(textAt(*file, 3, 100), "lo");
    EXPECT_EQ(textAt(*file, 5, 1), "");
    EXPECT_EQ(file->size(), 5U);
}

TEST(LocalFile, WritesAndSyncs) {
    const TemporaryFolder folder;
    const std::string path = folder.makeFile("a", "hello");
    const auto file = LocalFile::open(path, OpenMode::ReadWrite);
    file->write(4, bytesOf("p me"));
    file->sync();
    EXPECT_EQ(textAt(*LocalFile::open(path, OpenMode::Read), 0, 100), "hellp me");
}

TEST(LocalFile, ExclusiveCanWriteButDoesNotClaimToExcludeOthers) {
    const TemporaryFolder folder;
    const std::string path = folder.makeFile("a", "hello");
    const auto file = LocalFile::open(path, OpenMode::Exclusive);
    file->write(4, bytesOf("p"));
    EXPECT_FALSE(file->excludesOthers());
    EXPECT_EQ(textAt(*LocalFile::open(path, OpenMode::Read), 0, 100), "hellp");
    EXPECT_ERROR(basic::kFileNotFound, LocalFile::open(folder.path("none"), OpenMode::Exclusive));
}

TEST(LocalFile, RefusesToWriteAFileOpenedForReading) {
    const TemporaryFolder folder;
    const auto file = LocalFile::open(folder.makeFile("a", "hello"), OpenMode::Read);
    EXPECT_ERROR(basic::kPathFileAccess, file->write(0, bytesOf("x")));
}

TEST(LocalFile, CreatesANewFileOnly) {
    const TemporaryFolder folder;
    LocalFile::open(folder.path("new"), OpenMode::Create)->write(0, bytesOf("x"));
    EXPECT_ERROR(basic::kPathFileAccess, LocalFile::open(folder.path("new"), OpenMode::Create));
    EXPECT_EQ(std::filesystem::file_size(folder.path("new")), 1U);
}

TEST(LocalFile, MissingFileIsError53) {
    const TemporaryFolder folder;
    EXPECT_ERROR(basic::kFileNotFound, LocalFile::open(folder.path("none"), OpenMode::Read));
    EXPECT_ERROR(basic::kPathNotFound, LocalFile::open(folder.makeFile("a") + "/b", OpenMode::Read));
}

TEST(LocalFile, ErrorsCallTheFileByItsShownName) {
    const TemporaryFolder folder;
    try {
        LocalFile::open(folder.path("none"), OpenMode::Read, R"(\\srv\share\none)");
        FAIL();
    } catch (const basic::RuntimeError& error) {
        EXPECT_EQ(error.description(), R"(open: \\srv\share\none: No such file or directory)");
    }
}

TEST(LocalFile, RefusesAFolder) {
    const TemporaryFolder folder;
    EXPECT_ERROR(basic::kPathFileAccess, LocalFile::open(folder.path(), OpenMode::Read));
    EXPECT_ERROR(basic::kPathFileAccess, LocalFile::open(folder.path(), OpenMode::ReadWrite));
}

TEST(LocalFile, RefusesAPipeWithoutWaitingForItsOtherEnd) {
    const TemporaryFolder folder;
    ASSERT_EQ(::mkfifo(folder.path("pipe").c_str(), 0600), 0);
    EXPECT_ERROR(basic::kPathFileAccess, LocalFile::open(folder.path("pipe"), OpenMode::Read));
    EXPECT_ERROR(basic::kPathFileAccess, LocalFile::open(folder.path("pipe"), OpenMode::ReadWrite));
}

TEST(LocalFile, RefusesADevice) {
    EXPECT_ERROR(basic::kPathFileAccess, LocalFile::open("/dev/zero", OpenMode::Read));
    EXPECT_ERROR(basic::kPathFileAccess, LocalFile::open("/dev/null", OpenMode::ReadWrite));
}

TEST(LocalFile, RefusesANameWithAZeroCharacter) {
    const TemporaryFolder folder;
    EXPECT_ERROR(basic::kPathFileAccess,
                 LocalFile::open(folder.makeFile("a") + std::string("\0b", 2), OpenMode::Read));
}

TEST(LocalFile, IsNotInheritedByOtherPrograms) {
    const TemporaryFolder folder;
    const std::string path = std::filesystem::canonical(folder.makeFile("a")).string();
    const auto file = LocalFile::open(path, OpenMode::Read);
    int found = 0;
    for (const auto& entry : std::filesystem::directory_iterator("/proc/self/fd")) {
        std::error_code gone;
        if (std::filesystem::read_symlink(entry.path(), gone) != path)
            continue;
        ++found;
        EXPECT_NE(::fcntl(std::stoi(entry.path().filename()), F_GETFD) & FD_CLOEXEC, 0);
    }
    EXPECT_EQ(found, 1);
}

TEST(LocalFile, ExclusiveLockKeepsEveryOtherOut) {
    const TemporaryFolder folder;
    const std::string path = folder.makeFile("a");
    const auto one = LocalFile::open(path, OpenMode::ReadWrite);
    const auto other = LocalFile::open(path, OpenMode::ReadWrite);
    ASSERT_TRUE(one->lock(kFarBeyondTheEnd, 1, LockKind::Exclusive));
    EXPECT_FALSE(other->lock(kFarBeyondTheEnd, 255, LockKind::Shared));
    EXPECT_FALSE(other->lock(kFarBeyondTheEnd, 1, LockKind::Exclusive));
    EXPECT_TRUE(other->lock(kFarBeyondTheEnd + 1, 1, LockKind::Exclusive));
    one->unlock(kFarBeyondTheEnd, 1);
    EXPECT_TRUE(other->lock(kFarBeyondTheEnd, 1, LockKind::Exclusive));
}

TEST(LocalFile, SharedLocksGoTogether) {
    const TemporaryFolder folder;
    const std::string path = folder.makeFile("a");
    const auto one = LocalFile::open(path, OpenMode::Read);
    const auto other = LocalFile::open(path, OpenMode::ReadWrite);
    EXPECT_TRUE(one->lock(kFarBeyondTheEnd, 1, LockKind::Shared));
    EXPECT_TRUE(other->lock(kFarBeyondTheEnd, 1, LockKind::Shared));
    EXPECT_FALSE(other->lock(kFarBeyondTheEnd, 1, LockKind::Exclusive));
}

TEST(LocalFile, LocksEndWithTheFile) {
    const TemporaryFolder folder;
    const std::string path = folder.makeFile("a");
    auto one = LocalFile::open(path, OpenMode::ReadWrite);
    ASSERT_TRUE(one->lock(0, 1, LockKind::Exclusive));
    one.reset();
    EXPECT_TRUE(LocalFile::open(path, OpenMode::ReadWrite)->lock(0, 1, LockKind::Exclusive));
}

TEST(LocalFile, RefusesRangesBeyondAnyFile) {
    const TemporaryFolder folder;
    const auto file = LocalFile::open(folder.makeFile("a"), OpenMode::ReadWrite);
    std::array<std::byte, 2> bytes{};
    constexpr std::uint64_t kEnd = std::uint64_t{1} << 63U;
    EXPECT_ERROR(basic::kInvalidProcedureCall, file->read(kEnd - 2, bytes));
    EXPECT_ERROR(basic::kInvalidProcedureCall, file->write(~std::uint64_t{0}, bytes));
    EXPECT_ERROR(basic::kInvalidProcedureCall, file->lock(kEnd - 1, 2, LockKind::Shared));
    EXPECT_ERROR(basic::kInvalidProcedureCall, file->lock(0, 0, LockKind::Shared));
}

} // namespace
} // namespace share
