// SPDX-FileCopyrightText: 2026 The qmClient authors
// SPDX-License-Identifier: GPL-3.0-or-later
#include "platform/basic/RuntimeError.h"

#include <gtest/gtest.h>

#include <cerrno>

namespace basic {
namespace {

TEST(RuntimeError, CarriesNumberAndStockText) {
    const RuntimeError error(kOverflow);
    EXPECT_EQ(error.number(), 6);
    EXPECT_EQ(error.description(), "Overflow");
}

TEST(RuntimeError, UnknownNumberStillHasAText) {
    EXPECT_FALSE(errorText(31337).empty());
}

TEST(RuntimeError, ErrnoBecomesThePlatformsNumberWithContext) {
    EXPECT_EQ(errorFromErrno(ENOENT, "open", "/x").number(), kFileNotFound);
    EXPECT_EQ(errorFromErrno(EACCES, "open", "/x").number(), kPermissionDenied);
    EXPECT_EQ(errorFromErrno(ENOSPC, "write", "/x").number(), kDiskFull);
    EXPECT_EQ(errorFromErrno(EINVAL, "write", "/x").number(), kPathFileAccess);
    // What a mounted share answers while somebody has the file for himself.
    EXPECT_EQ(errorFromErrno(EBUSY, "open", "/x").number(), kFileAlreadyOpen);
    EXPECT_EQ(errorFromErrno(ETXTBSY, "open", "/x").number(), kFileAlreadyOpen);
    // And while its server is not there.
    for (const int gone : {EIO, EHOSTDOWN, ENOTCONN, ESTALE, ETIMEDOUT})
        EXPECT_EQ(errorFromErrno(gone, "read", "/x").number(), kDeviceIoError) << gone;
    EXPECT_EQ(errorFromErrno(ENOENT, "open", "/x").description(), "open: /x: No such file or directory");
}

} // namespace
} // namespace basic
