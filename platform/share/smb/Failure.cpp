// SPDX-FileCopyrightText: 2026 The qmClient authors
// SPDX-License-Identifier: GPL-3.0-or-later
#include "platform/share/smb/Failure.h"

#include <cerrno>
#include <system_error>

namespace share::smb {
namespace {

// In use by others: the library's answer to a sharing violation.
bool isInUse(int errnoValue) {
    return errnoValue == EBUSY || errnoValue == ETXTBSY;
}

bool isRefusal(int errnoValue) {
    return errnoValue == EACCES || errnoValue == EPERM;
}

std::string_view reason(const Response& response) {
    switch (response.stage) {
    case Stage::Resolve:
        return "the server's name is unknown";
    case Stage::Connect:
        return "no connection to the server";
    case Stage::LogOn:
        return "the server refuses the user name or the password";
    case Stage::Share:
        return isRefusal(response.failure) ? "the server refuses this user the share"
                                           : "the server has no such share";
    case Stage::Handle:
        return "the connection to the server was lost";
    default:
        return isInUse(response.failure) ? "others are using the file" : "";
    }
}

std::int32_t number(const Response& response) {
    if (isInUse(response.failure))
        return basic::kFileAlreadyOpen;
    if (isRefusal(response.failure))
        return basic::kPermissionDenied;
    switch (response.stage) {
    case Stage::Handle:
        return basic::kDeviceIoError;
    case Stage::Path:
        return basic::errorFromErrno(response.failure, {}, {}).number();
    default:
        return basic::kPathNotFound;
    }
}

} // namespace

basic::RuntimeError failure(const Response& response, std::string_view what, std::string_view path) {
    std::string text(what);
    text.append(": ").append(path).append(": ");
    if (const std::string_view known = reason(response); !known.empty())
        text.append(known).append(": ");
    text.append(std::generic_category().message(response.failure));
    return {number(response), std::move(text)};
}

} // namespace share::smb
