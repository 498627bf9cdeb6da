// SPDX-FileCopyrightText: 2026 The qmClient authors
// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once
// Where a server is reached: under its own name at the usual port, unless the administrator said otherwise
// with smb://host or smb://host:port in the place of a mapped folder.

#include <cstdint>
#include <optional>
#include <string>
#include <string_view>

namespace share::smb {

struct ServerAddress {
    std::string host;
    std::uint16_t port = 445;
};

// Nothing for what is no such address, a folder for instance.
std::optional<ServerAddress> addressOf(std::string_view mapped);

} // namespace share::smb
