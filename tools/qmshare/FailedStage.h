// SPDX-FileCopyrightText: 2026 The qmClient authors
// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once
// How far a request came, worked out from the library's errno value: it has one value for several failures,
// and several for a connection that is gone.

#include "platform/share/smb/Messages.h"

#include <cstdint>
#include <string>

namespace qmshare {

bool isConnectionFailure(std::int32_t errnoValue);

// While a share was being connected. `isLoggedOn`: the server accepted the user.
share::smb::Stage stageOfConnecting(std::int32_t errnoValue, const std::string& host, bool isLoggedOn);

// Of a call for a path on a share that was connected before the call; `isConnected`: it still is. If it is
// not, a refusal was a new log-on's, and counts as such, so that a password is not tried a second time.
share::smb::Stage stageOfOperation(std::int32_t errnoValue, bool isConnected);

} // namespace qmshare
