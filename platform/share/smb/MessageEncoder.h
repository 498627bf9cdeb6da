// SPDX-FileCopyrightText: 2026 The qmClient authors
// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once
// Turns requests and responses into packets. Numbers are little-endian. A field beyond its limit is error 5:
// the caller had to cut it to pieces. Layout: docs/share-protocol.md.

#include "platform/share/smb/Messages.h"

namespace share::smb {

std::vector<std::byte> encode(const Request& request);
std::vector<std::byte> encode(const Response& response);

} // namespace share::smb
