// SPDX-FileCopyrightText: 2026 The qmClient authors
// SPDX-License-Identifier: GPL-3.0-or-later
#include "tools/qmshare/FailedStage.h"

#include <netdb.h>
#include <sys/socket.h>

#include <algorithm>
#include <array>
#include <cerrno>

namespace qmshare {
namespace {

using share::smb::Stage;

constexpr std::array kConnectionFailures{ECONNABORTED, ECONNREFUSED, ECONNRESET,  EPIPE,
                                         ENOTCONN,     ETIMEDOUT,    ENETDOWN,    ENETUNREACH,
                                         ENETRESET,    EHOSTDOWN,    EHOSTUNREACH};

bool isRefusal(std::int32_t errnoValue) {
    return errnoValue == EACCES || errnoValue == EPERM;
}

bool isKnown(const std::string& host) {
    addrinfo wanted{};
    wanted.ai_socktype = SOCK_STREAM;
    addrinfo* found = nullptr;
    if (::getaddrinfo(host.c_str(), nullptr, &wanted, &found) != 0)
        return false;
    ::freeaddrinfo(found);
    return true;
}

} // namespace

bool isConnectionFailure(std::int32_t errnoValue) {
    return std::ranges::find(kConnectionFailures, errnoValue) != kConnectionFailures.end();
}

Stage stageOfConnecting(std::int32_t errnoValue, const std::string& host, bool isLoggedOn) {
    if (isRefusal(errnoValue))
        return isLoggedOn ? Stage::Share : Stage::LogOn;
    if (errnoValue == ENOENT || errnoValue == ENODEV)
        return Stage::Share;
    return isConnectionFailure(errnoValue) || isKnown(host) ? Stage::Connect : Stage::Resolve;
}

Stage stageOfOperation(std::int32_t errnoValue, bool isConnected) {
    if (isConnectionFailure(errnoValue))
        return Stage::Connect;
    return isRefusal(errnoValue) && !isConnected ? Stage::LogOn : Stage::Path;
}

} // namespace qmshare
