// SPDX-FileCopyrightText: 2026 The qmClient authors
// SPDX-License-Identifier: GPL-3.0-or-later
#include "platform/share/smb/CredentialsFile.h"

#include "tests/platform/share/ExpectError.h"
#include "tests/platform/share/TemporaryFolder.h"

#include <gtest/gtest.h>
#include <sys/stat.h>

namespace share::testing {
namespace {

using smb::Credentials;
using smb::parseCredentials;
using smb::readCredentialsFile;

TEST(CredentialsFile, HasUserPasswordAndDomain) {
    const Credentials credentials = parseCredentials("username=meier\npassword=secret\ndomain=FIRM\n");
    EXPECT_EQ(credentials.user, "meier");
    EXPECT_EQ(credentials.password.view(), "secret");
    EXPECT_EQ(credentials.domain, "FIRM");
}

TEST(CredentialsFile, TakesThePasswordAsItStands) {
    EXPECT_EQ(parseCredentials("username=m\npassword= p@:/%\\\xC3\xA4=# \n").password.view(),
              " p@:/%\\\xC3\xA4=# ");
    EXPECT_EQ(parseCredentials("username=m\npassword=").password.view(), "");
}

TEST(CredentialsFile, TakesLinesOfWindowsRemarksAndBlanksInFront) {
    const Credentials credentials = parseCredentials(
        "# for srv01\r\n  username=FIRM\\meier\r\npasswordless=no\r\n\r\npassword=x\r\ndomain=OTHER");
    EXPECT_EQ(credentials.user, "meier");
    EXPECT_EQ(credentials.domain, "FIRM");
    EXPECT_EQ(credentials.password.view(), "x");
}

class CredentialsFileTest : public ::testing::Test {
protected:
    std::string file(std::string_view content, mode_t mode) const {
        const std::string path = m_folder.makeFile("credentials", content);
        ::chmod(path.c_str(), mode);
        return path;
    }
    TemporaryFolder m_folder;
};

TEST_F(CredentialsFileTest, IsReadWhenItIsTheUsersAlone) {
    const Credentials credentials = readCredentialsFile(file("username=meier\npassword=secret\n", 0600));
    EXPECT_EQ(credentials.user, "meier");
    EXPECT_EQ(credentials.password.view(), "secret");
}

TEST_F(CredentialsFileTest, IsRefusedWhenOthersMayReadIt) {
    for (const mode_t mode : {0640U, 0604U, 0666U})
        EXPECT_ERROR(basic::kPermissionDenied,
                     readCredentialsFile(file("username=meier\npassword=secret\n", mode)))
            << mode;
}

TEST_F(CredentialsFileTest, MeansNobodyWhenItIsMissing) {
    EXPECT_TRUE(readCredentialsFile(m_folder.path("none")).isAnybody());
    EXPECT_TRUE(readCredentialsFile(m_folder.path("none/none")).isAnybody());
}

TEST_F(CredentialsFileTest, IsRefusedWithoutAUserTooLargeOrNoFile) {
    EXPECT_ERROR(basic::kPathFileAccess, readCredentialsFile(file("password=secret\n", 0600)));
    EXPECT_ERROR(basic::kPathFileAccess,
                 readCredentialsFile(file("username=m\n" + std::string(5'000, '#'), 0600)));
    ::chmod(m_folder.path().c_str(), 0700);
    EXPECT_ERROR(basic::kPathFileAccess, readCredentialsFile(m_folder.path()));
}

TEST_F(CredentialsFileTest, IsNotQuotedInErrors) {
    try {
        readCredentialsFile(file("username=\npassword=hunter2\n", 0600));
        FAIL() << "read";
    } catch (const basic::RuntimeError& error) {
        EXPECT_EQ(error.description().find("hunter2"), std::string::npos);
    }
}

} // namespace
} // namespace share::testing
