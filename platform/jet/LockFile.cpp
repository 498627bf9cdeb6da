// SPDX-FileCopyrightText: 2026 The qmClient authors
// SPDX-License-Identifier: GPL-3.0-or-later
#include "platform/jet/LockFile.h"

#include "platform/basic/RuntimeError.h"
#include "platform/jet/Format.h"

#include <algorithm>
#include <array>
#include <utility>

namespace jet {

using namespace format;

namespace {

constexpr std::string_view kEnding = ".ldb";
constexpr char kUnknown = '?';

// Names are of no stated character set and end in NUL; what is not plain text is not shown.
std::string nameIn(std::span<const std::byte> bytes) {
    std::string name;
    for (const std::byte byte : bytes) {
        const char c = static_cast<char>(byte);
        if (c == '\0')
            break;
        name += c > ' ' && c <= '~' ? c : kUnknown;
    }
    return name;
}

DatabaseUser readEntry(share::File& file, std::size_t user) {
    std::array<std::byte, lockFile::kEntrySize> entry{};
    file.read((user - 1) * lockFile::kEntrySize, entry);
    return {nameIn(std::span(entry).first(lockFile::kNameSize)),
            nameIn(std::span(entry).subspan(lockFile::kNameSize))};
}

bool isFree(share::File& file, std::uint64_t byte) {
    if (!file.lock(byte, 1, share::LockKind::Exclusive))
        return false;
    file.unlock(byte, 1);
    return true;
}

} // namespace

std::string lockFilePath(std::string_view database) {
    const std::size_t name = database.rfind('\\') + 1; // of npos: 0
    const std::size_t dot = database.rfind('.');
    const bool hasEnding = dot != std::string_view::npos && dot > name;
    std::string path(database.substr(0, hasEnding ? dot : database.size()));
    path.append(kEnding);
    return path;
}

std::unique_ptr<share::File> openLockFile(share::FileSystemObject& files, std::string_view database) {
    const std::string path = lockFilePath(database);
    try {
        return files.openFile(path, share::OpenMode::ReadWrite);
    } catch (const basic::RuntimeError& error) {
        if (error.number() != basic::kFileNotFound)
            throw;
    }
    try {
        return files.openFile(path, share::OpenMode::Create);
    } catch (const basic::RuntimeError&) {
        if (!files.FileExists(path))
            throw;
    }
    return files.openFile(path, share::OpenMode::ReadWrite); // somebody made it in between
}

std::optional<DatabaseUser> findOtherUser(share::File& file) {
    if (!canLock(file))
        return std::nullopt;
    for (std::size_t user = 1; user <= lockFile::kUsers; ++user)
        if (!isFree(file, lockFile::kUserLocks + user))
            return readEntry(file, user);
    return std::nullopt;
}

std::optional<DatabaseUser> readFirstEntry(share::File& file) {
    DatabaseUser user = readEntry(file, 1);
    return user.computer.empty() ? std::nullopt : std::optional(std::move(user));
}

bool canLock(share::File& file) {
    // Shared, so that two who try at the same time do not take each other for a file without locks.
    if (!file.lock(lockFile::kUserLocks, 1, share::LockKind::Shared))
        return false;
    file.unlock(lockFile::kUserLocks, 1);
    return true;
}

} // namespace jet
