// SPDX-FileCopyrightText: 2026 The qmClient authors
// SPDX-License-Identifier: GPL-3.0-or-later
#include "platform/share/smb/ServerAddress.h"

#include <charconv>

namespace share::smb {
namespace {

constexpr std::string_view kScheme = "smb://";

std::optional<std::uint16_t> portOf(std::string_view digits) {
    std::uint16_t port = 0;
    const auto [end, failure] = std::from_chars(digits.data(), digits.data() + digits.size(), port);
    if (failure != std::errc() || end != digits.data() + digits.size() || port == 0)
        return std::nullopt;
    return port;
}

} // namespace

std::optional<ServerAddress> addressOf(std::string_view mapped) {
    if (!mapped.starts_with(kScheme))
        return std::nullopt;
    mapped.remove_prefix(kScheme.size());
    if (mapped.ends_with('/'))
        mapped.remove_suffix(1);
    const std::size_t colon = mapped.find(':');
    const std::string_view host = mapped.substr(0, colon);
    if (host.empty() || host.find_first_of("/\\@ ") != std::string_view::npos)
        return std::nullopt;
    if (colon == std::string_view::npos)
        return ServerAddress{std::string(host)};
    const std::optional<std::uint16_t> port = portOf(mapped.substr(colon + 1));
    return port ? std::optional(ServerAddress{std::string(host), *port}) : std::nullopt;
}

} // namespace share::smb
