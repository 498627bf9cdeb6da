// SPDX-FileCopyrightText: 2026 The qmClient authors
// SPDX-License-Identifier: GPL-3.0-or-later
#include "dialogs/MailboxFolders.h"

#include <gmock/gmock.h>

namespace dialogs {
namespace {

using testing::ElementsAre;

TEST(MailboxFoldersTest, APlainDecimalNumberIsAMailbox) {
    EXPECT_EQ(mailboxNumber("12"), 12);
    EXPECT_EQ(mailboxNumber("0"), 0);
    EXPECT_EQ(mailboxNumber("2147483647"), 2147483647);
}

TEST(MailboxFoldersTest, EverythingElseIsNone) {
    for (const char* name : {"", "Archive", "12a", "a12", "+12", "-12", " 12", "12 ", "012", "00", "1.5",
                             "1e3", "&H10", "2147483648", "99999999999999999999"})
        EXPECT_EQ(mailboxNumber(name), std::nullopt) << name;
    EXPECT_EQ(mailboxNumber(std::string_view("1\0", 2)), std::nullopt);
}

TEST(MailboxFoldersTest, AFolderNamedArchiveBesideMailboxesIsNotListed) {
    EXPECT_THAT(mailboxNumbers({"12", "Archive", "15"}), ElementsAre(12, 15));
}

TEST(MailboxFoldersTest, MailboxesComeInTheOrderOfTheirNumbers) {
    EXPECT_THAT(mailboxNumbers({"100", "20", "3"}), ElementsAre(3, 20, 100));
}

} // namespace
} // namespace dialogs
