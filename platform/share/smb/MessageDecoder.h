// SPDX-FileCopyrightText: 2026 The qmClient authors
// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once
// Reads requests and responses from packets of the other side, which is not trusted: what is cut short, too
// long or out of its range is error 51. Layout: docs/share-protocol.md.

#include "platform/share/smb/Messages.h"

#include <span>

namespace share::smb {

Request decodeRequest(std::span<const std::byte> packet);
Response decodeResponse(std::span<const std::byte> packet);

} // namespace share::smb
