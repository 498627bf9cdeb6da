// SPDX-FileCopyrightText: 2026 The qmClient authors
// SPDX-License-Identifier: GPL-3.0-or-later
#include "platform/share/smb/ServerAddress.h"

#include <gtest/gtest.h>

namespace share::smb {
namespace {

TEST(ServerAddress, HasTheUsualPortUnlessToldOtherwise) {
    const auto plain = addressOf("smb://files.firm.example");
    ASSERT_TRUE(plain);
    EXPECT_EQ(plain->host, "files.firm.example");
    EXPECT_EQ(plain->port, 445);
    const auto other = addressOf("smb://127.0.0.1:1445/");
    ASSERT_TRUE(other);
    EXPECT_EQ(other->host, "127.0.0.1");
    EXPECT_EQ(other->port, 1445);
}

TEST(ServerAddress, IsNothingElse) {
    for (const char* text :
         {"", "/srv/share", "smb://", "smb://:445", "smb://host:", "smb://host:0", "smb://host:65536",
          "smb://host:4x", "smb://host/share", "smb://user@host", "files.firm.example"})
        EXPECT_FALSE(addressOf(text)) << text;
}

} // namespace
} // namespace share::smb
