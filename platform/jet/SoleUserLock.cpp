// SPDX-FileCopyrightText: 2026 The qmClient authors
// SPDX-License-Identifier: GPL-3.0-or-later
#include "platform/jet/SoleUserLock.h"

#include "platform/jet/Format.h"

#include <algorithm>
#include <array>
#include <span>
#include <string_view>

namespace jet {

using namespace format;

namespace {

void putName(std::span<std::byte> into, std::string_view name) {
    const auto bytes = std::as_bytes(std::span(name.substr(0, lockFile::kNameSize - 1))); // a NUL ends it
    std::ranges::copy(bytes, into.begin());
}

} // namespace

std::unique_ptr<SoleUserLock> SoleUserLock::tryTake(share::File& file, const DatabaseUser& self) {
    if (!file.lock(lockFile::kUserLocks + 1, lockFile::kUsers, share::LockKind::Exclusive))
        return nullptr;
    std::unique_ptr<SoleUserLock> taken(new SoleUserLock(file)); // gives the lock back if the entry fails
    std::array<std::byte, lockFile::kEntrySize> entry{};
    putName(std::span(entry).first(lockFile::kNameSize), self.computer);
    putName(std::span(entry).last(lockFile::kNameSize), self.account);
    file.write((kNumber - 1) * lockFile::kEntrySize, entry);
    return taken;
}

SoleUserLock::~SoleUserLock() {
    try {
        m_file.unlock(lockFile::kUserLocks + 1, lockFile::kUsers);
    } catch (...) { // closing the file gives the lock back anyway
    }
}

} // namespace jet
