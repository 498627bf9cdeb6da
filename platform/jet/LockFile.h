// SPDX-FileCopyrightText: 2026 The qmClient authors
// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once
// The lock file beside a database: its name, opening it, and who is in. Layout: docs/jet4-format.md, "Lock
// file".

#include "platform/jet/DatabaseUser.h"
#include "platform/share/FileSystemObject.h"

#include <memory>
#include <optional>
#include <string>
#include <string_view>

namespace jet {

// The database's name with the ending .ldb.
std::string lockFilePath(std::string_view database);

// Makes the file when it is not there.
std::unique_ptr<share::File> openLockFile(share::FileSystemObject& files, std::string_view database);

// The entry of the first user whose lock somebody else holds; nothing when nobody does or the file cannot
// lock. Tries each user's byte and gives it back.
std::optional<DatabaseUser> findOtherUser(share::File& file);

// The first user's entry, whether he is in or left long ago; nothing in a file without entries.
std::optional<DatabaseUser> readFirstEntry(share::File& file);

// Whether locks work at all on this file, tried on a byte that stands for nobody.
bool canLock(share::File& file);

} // namespace jet
