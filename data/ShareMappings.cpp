// SPDX-FileCopyrightText: 2026 The qmClient authors
// SPDX-License-Identifier: GPL-3.0-or-later
#include "data/ShareMappings.h"

#include "platform/basic/RuntimeError.h"

namespace data {
namespace {

constexpr std::string_view kKey = "Software\\Corvantis\\Quillamar\\1.0\\Shares";

bool wasFound(const registry::Result& result) {
    if (result.code != registry::kSuccess && result.code != registry::kFileNotFound)
        throw basic::RuntimeError(basic::kPathFileAccess, result.description);
    return result.code == registry::kSuccess;
}

std::string_view withoutBackslashes(std::string_view server) {
    while (!server.empty() && server.front() == '\\')
        server.remove_prefix(1);
    while (!server.empty() && server.back() == '\\')
        server.remove_suffix(1);
    return server;
}

} // namespace

std::optional<std::string> ShareMappings::operator()(std::string_view server) const {
    const std::string_view name = withoutBackslashes(server);
    if (name.empty()) // the default value is nobody's entry
        return std::nullopt;
    if (auto folder = find(registry::Root::CurrentUser, name))
        return folder;
    return find(registry::Root::LocalMachine, name);
}

std::optional<std::string> ShareMappings::find(registry::Root root, std::string_view server) const {
    registry::OpenKey key;
    if (!wasFound(m_registry->RegOpenKey(root, kKey, key)))
        return std::nullopt;
    registry::QueriedValue value;
    bool isFound = false;
    for (const std::string_view prefix : {"", "\\\\"})
        isFound =
            isFound || wasFound(m_registry->RegQueryValueEx(key, std::string(prefix).append(server), value));
    if (!isFound || value.type != registry::kRegSz)
        return std::nullopt;
    std::string folder(value.data.begin(), value.data.end());
    folder.resize(std::min(folder.find('\0'), folder.size()));
    return folder.empty() ? std::nullopt : std::optional(std::move(folder));
}

} // namespace data
