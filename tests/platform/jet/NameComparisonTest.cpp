// SPDX-FileCopyrightText: 2026 The qmClient authors
// SPDX-License-Identifier: GPL-3.0-or-later
#include "platform/jet/NameComparison.h"

#include <gtest/gtest.h>

namespace jet {
namespace {

TEST(NameComparison, IgnoresCaseOfAsciiAndLatin1) {
    EXPECT_TRUE(equalNames("CallLog", "CALLLOG"));
    EXPECT_TRUE(equalNames("\xC3\x9C"
                           "ber",
                           "\xC3\xBC"
                           "BER")); // U+00DC, U+00FC
}

TEST(NameComparison, TellsDifferentNamesApart) {
    EXPECT_FALSE(equalNames("CallLog", "CallLogs"));
    EXPECT_FALSE(equalNames("CallLog", "CallLag"));
    EXPECT_FALSE(equalNames("\xC3\x97", "\xC3\xB7")); // multiplication and division sign
    EXPECT_FALSE(equalNames("[", "{"));
}

} // namespace
} // namespace jet
