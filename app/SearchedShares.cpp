// SPDX-FileCopyrightText: 2026 The qmClient authors
// SPDX-License-Identifier: GPL-3.0-or-later
#include "app/SearchedShares.h"

#include "app/AskingFiles.h"
#include "platform/basic/RuntimeError.h"
#include "platform/share/LocalFileSystemObject.h"
#include "platform/share/MountTable.h"
#include "platform/share/ThreadWaiter.h"

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

dialogs::SearchedShare inFolder(const share::ShareResolver& resolver) {
    return {std::make_unique<share::LocalFileSystemObject>(resolver), {}};
}

} // namespace

dialogs::SearchedShare SearchedShares::operator()(const std::string& folder) const {
    const std::optional<UncPath> path = pathOf(folder);
    if (!path)
        return inFolder({nullptr, share::MountTable::systemText});
    const share::ShareResolver resolver(m_mapping, share::MountTable::systemText);
    if (resolver.resolve(*path).way == share::Way::Server)
        return onServer(path->server());
    return inFolder(resolver.settledFor(*path));
}

// The user wants it now, and his server's address is looked up here, not on the other thread.
dialogs::SearchedShare SearchedShares::onServer(const std::string& server) const {
    m_servers.server(server).tryNow();
    const auto waiter = std::make_shared<share::ThreadWaiter>();
    return {std::make_unique<AskingFiles>(m_servers, *waiter, m_desk, server),
            [waiter] { waiter->cancel(); }};
}

} // namespace app
