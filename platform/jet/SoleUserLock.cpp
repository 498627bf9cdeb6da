// SPDX-FileCopyrightText: 2026 The qmClient authors
// SPDX-License-Identifier: GPL-3.0-or-later
#include "platform/jet/SoleUserLock.h"

#include "platform/basic/RuntimeError.h"

#include <algorithm>
#include <array>
#include <span>

namespace jet {
namespace {

constexpr std::uint64_t kFirstUserByte = 0x10000001;
constexpr std::uint64_t kUserBytes = 255;
constexpr std::size_t kNameSize = 32;
constexpr std::size_t kEntrySize = 2 * kNameSize;

void putName(std::span<std::byte> into, std::string_view name) {
    const auto bytes = std::as_bytes(std::span(name.substr(0, kNameSize - 1))); // a NUL ends it
    std::ranges::copy(bytes, into.begin());
}

} // namespace

SoleUserLock::SoleUserLock(share::File& lockFile, std::string_view computer, std::string_view user)
    : m_file(lockFile) {
    if (!m_file.lock(kFirstUserByte, kUserBytes, share::LockKind::Exclusive))
        throw basic::RuntimeError(basic::kProviderFailure,
                                  m_file.name() + ": somebody else is using the database");
    std::array<std::byte, kEntrySize> entry{};
    putName(std::span(entry).first(kNameSize), computer);
    putName(std::span(entry).last(kNameSize), user);
    m_file.write((kNumber - 1) * kEntrySize, entry);
}

SoleUserLock::~SoleUserLock() {
    try {
        m_file.unlock(kFirstUserByte, kUserBytes);
    } catch (...) { // closing the file gives the lock back anyway
    }
}

} // namespace jet
