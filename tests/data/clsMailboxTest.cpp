// SPDX-FileCopyrightText: 2026 The qmClient authors
// SPDX-License-Identifier: GPL-3.0-or-later
#include "data/clsMailbox.h"

#include "tests/data/SettingsWorld.h"

#include <gtest/gtest.h>

namespace data {
namespace {

TEST(clsMailbox, HasTheFirstImageWhateverItsType) {
    PreparedAnswers errors;
    clsMailbox mailbox(errors);
    for (const char* type : {"M", "", "X", "m"}) {
        mailbox.MailboxType = type;
        EXPECT_EQ(mailbox.GetIconID(), 1) << type;
    }
    EXPECT_TRUE(errors.reports.empty());
}

TEST(clsMailbox, BeginsWithoutCalls) {
    PreparedAnswers errors;
    const clsMailbox mailbox(errors);
    EXPECT_EQ(mailbox.ID, 0);
    EXPECT_EQ(mailbox.LastCallCount, 0);
    EXPECT_EQ(mailbox.NewCallCount, 0);
}

} // namespace
} // namespace data
