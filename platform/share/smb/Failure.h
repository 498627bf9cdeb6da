// SPDX-FileCopyrightText: 2026 The qmClient authors
// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once
// What the response of qmshare means to the program: a RuntimeError with the platform's number and a text
// that says how far the request came.

#include "platform/basic/RuntimeError.h"
#include "platform/share/smb/Messages.h"

#include <string_view>

namespace share::smb {

// `what` is what was to be done, `path` with what. The server itself (unknown, silent, refusing the user or
// the share): 76, or 70 where it refuses. The file: 53 missing, 76 a missing folder on the way, 70 no
// permission, 55 in use by others, 61, 75. A connection that was lost below an open file: 57.
basic::RuntimeError failure(const Response& response, std::string_view what, std::string_view path);

} // namespace share::smb
