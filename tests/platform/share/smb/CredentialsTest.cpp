// SPDX-FileCopyrightText: 2026 The qmClient authors
// SPDX-License-Identifier: GPL-3.0-or-later
#include "platform/share/smb/LogOnRecord.h"
#include "tests/platform/share/ExpectError.h"

#include <gtest/gtest.h>

#include <fstream>
#include <string>

namespace share::smb {
namespace {

TEST(Credentials, TakeDomainAndUserApart) {
    for (const char* name : {"FIRM\\meier", "FIRM/meier"}) {
        const Credentials credentials = Credentials::of(name, "x");
        EXPECT_EQ(credentials.domain, "FIRM") << name;
        EXPECT_EQ(credentials.user, "meier") << name;
    }
}

TEST(Credentials, KeepAUserOfARealmWhole) {
    const Credentials credentials = Credentials::of("meier@FIRM.EXAMPLE", "x");
    EXPECT_EQ(credentials.domain, "");
    EXPECT_EQ(credentials.user, "meier@FIRM.EXAMPLE");
}

TEST(Credentials, AreNobodysWithoutAUser) {
    EXPECT_TRUE(Credentials{}.isAnybody());
    EXPECT_FALSE(Credentials::of("meier", "").isAnybody());
}

TEST(LogOnRecord, BringsEveryCharacterOver) {
    const std::string password = "p@:/%\\\xC3\xA4 \"'";
    const Credentials credentials = decodeLogOn(encodeLogOn(Credentials::of("FIRM\\meier", password)));
    EXPECT_EQ(credentials.domain, "FIRM");
    EXPECT_EQ(credentials.user, "meier");
    EXPECT_EQ(credentials.password.view(), password);
}

TEST(LogOnRecord, RefusesWhatIsCutShort) {
    const std::vector<std::byte> data = encodeLogOn(Credentials::of("FIRM\\meier", "secret"));
    for (std::size_t size = 0; size < data.size(); ++size)
        EXPECT_ERROR(basic::kInternalError, decodeLogOn(std::span(data).first(size))) << size;
}

TEST(LogOnRecord, RefusesAZeroCharacter) {
    EXPECT_ERROR(basic::kInternalError,
                 decodeLogOn(encodeLogOn(Credentials::of(std::string("mei\0er", 6), "x"))));
}

// The flags of the memory region that holds the address, as proc(5) lists them in smaps.
std::string memoryFlagsOf(const void* address) {
    std::ifstream maps("/proc/self/smaps");
    const auto wanted = reinterpret_cast<std::uintptr_t>(address);
    bool isInside = false;
    for (std::string line; std::getline(maps, line);) {
        std::uintptr_t begin = 0;
        std::uintptr_t end = 0;
        if (std::sscanf(line.c_str(), "%lx-%lx ", &begin, &end) == 2)
            isInside = begin <= wanted && wanted < end;
        if (isInside && line.starts_with("VmFlags:"))
            return line;
    }
    return {};
}

TEST(Secret, StaysOutOfCoreFiles) {
    const Secret secret("hunter2");
    EXPECT_NE(memoryFlagsOf(secret.view().data()).find(" dd"), std::string::npos);
}

TEST(Secret, MovesAndLeavesNothingBehind) {
    Secret first("hunter2");
    const Secret second(std::move(first));
    EXPECT_EQ(second.view(), "hunter2");
    EXPECT_EQ(first.view(), ""); // NOLINT(bugprone-use-after-move): that is the question
}

TEST(Secret, IsCutAtWhatItHolds) {
    EXPECT_EQ(Secret(std::string(2 * Secret::kMaximumBytes, 'x')).view().size(), Secret::kMaximumBytes);
}

} // namespace
} // namespace share::smb
