// SPDX-FileCopyrightText: 2026 The qmClient authors
// SPDX-License-Identifier: GPL-3.0-or-later
#include "app/SearchedShares.h"

#include "app/AskingFiles.h"
#include "platform/basic/RuntimeError.h"
#include "platform/share/LocalFileSystemObject.h"
#include "platform/share/MountTable.h"
#include "platform/share/smb/ThreadWaiter.h"

#include <memory>
#include <optional>

namespace app {
namespace {

using share::UncPath;

std::optional<UncPath> pathOf(const std::string& folder) {
    try {
        return UncPath::parse(folder);
    } catch (const basic::RuntimeError&) {
        return std::nullopt;
    }
}

// The settings are asked here: the search's thread must not look into them.
share::ShareResolver::Mapping answerOf(const share::ShareResolver::Mapping& mapping,
                                       const std::optional<UncPath>& path) {
    const std::optional<std::string> answer = path ? mapping(path->server()) : std::nullopt;
    return [answer](std::string_view) { return answer; };
}

} // namespace

dialogs::SearchedShare SearchedShares::operator()(const std::string& folder) const {
    const std::optional<UncPath> path = pathOf(folder);
    const share::ShareResolver resolver(answerOf(m_mapping, path), share::MountTable::systemText);
    if (path && resolver.resolve(*path).way == share::Way::Server)
        return onServer(path->server());
    return {std::make_unique<share::LocalFileSystemObject>(resolver), {}};
}

// The user wants it now, and his server's address is looked up here, not on the other thread.
dialogs::SearchedShare SearchedShares::onServer(const std::string& server) const {
    m_servers.server(server).tryNow();
    const auto waiter = std::make_shared<share::smb::ThreadWaiter>();
    return {std::make_unique<AskingFiles>(m_servers, *waiter, m_desk, server),
            [waiter] { waiter->cancel(); }};
}

} // namespace app
