// SPDX-FileCopyrightText: 2026 The qmClient authors
// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once
// Another program's user inside of a database: the entry and the lock in its lock file.

#include "platform/share/File.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <array>
#include <memory>
#include <span>

namespace jet::test {

class OtherUser {
public:
    explicit OtherUser(std::unique_ptr<share::File> lockFile, std::size_t user = 3)
        : m_file(std::move(lockFile)) {
        std::array<std::byte, 64> entry{};
        std::ranges::copy(std::as_bytes(std::span("RECEPTION")), entry.begin());
        std::ranges::copy(std::as_bytes(std::span("operator")), entry.begin() + 32);
        m_file->write((user - 1) * entry.size(), entry);
        EXPECT_TRUE(m_file->lock(0x10000000 + user, 1, share::LockKind::Exclusive));
    }
    void leave() { m_file.reset(); }

private:
    std::unique_ptr<share::File> m_file;
};

} // namespace jet::test
