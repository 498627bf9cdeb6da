// SPDX-FileCopyrightText: 2026 The qmClient authors
// SPDX-License-Identifier: GPL-3.0-or-later
#include "platform/share/smb/Failure.h"

#include <gtest/gtest.h>

#include <cerrno>

namespace share::smb {
namespace {

struct Case {
    Stage stage;
    int failure;
    std::int32_t number;
    const char* says;
};

class FailureTest : public ::testing::TestWithParam<Case> {};

TEST_P(FailureTest, HasThePlatformsNumberAndSaysHowFarItCame) {
    const Case& expected = GetParam();
    const basic::RuntimeError error =
        failure({.stage = expected.stage, .failure = expected.failure}, "open", "\\\\srv01\\Quillamar_0$\\x");
    EXPECT_EQ(error.number(), expected.number) << error.description();
    EXPECT_NE(error.description().find(expected.says), std::string::npos) << error.description();
    EXPECT_NE(error.description().find("\\\\srv01\\Quillamar_0$\\x"), std::string::npos);
}

INSTANTIATE_TEST_SUITE_P(
    Stages, FailureTest,
    ::testing::Values(Case{Stage::Resolve, EINVAL, basic::kPathNotFound, "name is unknown"},
                      Case{Stage::Connect, ECONNREFUSED, basic::kPathNotFound, "Connection refused"},
                      Case{Stage::Connect, ETIMEDOUT, basic::kPathNotFound, "no connection"},
                      Case{Stage::LogOn, EACCES, basic::kPermissionDenied, "refuses the user name"},
                      Case{Stage::Share, ENOENT, basic::kPathNotFound, "no such share"},
                      Case{Stage::Share, EACCES, basic::kPermissionDenied, "this user the share"},
                      Case{Stage::Path, ENOENT, basic::kFileNotFound, "No such file"},
                      Case{Stage::Path, ENOTDIR, basic::kPathNotFound, "Not a directory"},
                      Case{Stage::Path, EACCES, basic::kPermissionDenied, "Permission denied"},
                      Case{Stage::Path, EBUSY, basic::kFileAlreadyOpen, "others are using"},
                      Case{Stage::Path, ENOSPC, basic::kDiskFull, "No space"},
                      Case{Stage::Path, EEXIST, basic::kPathFileAccess, "exists"},
                      Case{Stage::Handle, ECONNABORTED, basic::kDeviceIoError, "was lost"}));

} // namespace
} // namespace share::smb
