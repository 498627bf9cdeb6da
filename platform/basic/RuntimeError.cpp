// SPDX-FileCopyrightText: 2026 The qmClient authors
// SPDX-License-Identifier: GPL-3.0-or-later
#include "platform/basic/RuntimeError.h"

#include <cerrno>
#include <system_error>

namespace basic {
namespace {

std::int32_t numberFor(int errnoValue) {
    switch (errnoValue) {
    case ENOENT:
        return kFileNotFound;
    case ENOTDIR:
        return kPathNotFound;
    case EACCES:
    case EPERM:
    case EROFS:
        return kPermissionDenied;
    case EBUSY: // a mounted share's answers while somebody has the file for himself
    case ETXTBSY:
        return kFileAlreadyOpen;
    case ENOSPC:
    case EDQUOT:
        return kDiskFull;
    case ENOMEM:
        return kOutOfMemory;
    case EIO:
    case ECONNABORTED: // and on: a mounted share's answers when its server is not there
    case ECONNREFUSED:
    case ECONNRESET:
    case EHOSTDOWN:
    case EHOSTUNREACH:
    case ENETDOWN:
    case ENETUNREACH:
    case ENOTCONN:
    case ESHUTDOWN:
    case ESTALE:
    case ETIMEDOUT:
        return kDeviceIoError;
    default:
        return kPathFileAccess;
    }
}

} // namespace

RuntimeError errorFromErrno(int errnoValue, std::string_view what, std::string_view path) {
    std::string text(what);
    text.append(": ").append(path).append(": ").append(std::generic_category().message(errnoValue));
    return {numberFor(errnoValue), std::move(text)};
}

} // namespace basic
