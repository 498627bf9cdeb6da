// SPDX-FileCopyrightText: 2026 The qmClient authors
// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once
// The data of a LogOn request: who logs on. Encoded bytes hold the password; who holds them wipes them after
// use.

#include "platform/share/smb/Credentials.h"

#include <cstddef>
#include <span>
#include <vector>

namespace share::smb {

inline constexpr std::size_t kMaximumUserBytes = 1024;

std::vector<std::byte> encodeLogOn(const Credentials& credentials);
// Error 51 for anything that encodeLogOn would not have made, and for a field with a zero character.
Credentials decodeLogOn(std::span<const std::byte> data);

} // namespace share::smb
