// SPDX-FileCopyrightText: 2026 The qmClient authors
// SPDX-License-Identifier: GPL-3.0-or-later
#include "app/MessageFiles.h"

#include "data/ShareMappings.h"
#include "platform/registry/Registry.h"
#include "platform/share/LocalFileSystemObject.h"
#include "platform/share/MountTable.h"
#include "platform/share/RoutedFileSystemObject.h"
#include "platform/share/ThreadWaiter.h"
#include "platform/share/smb/SmbFileSystemObject.h"

#include <utility>

namespace app {
namespace {

using share::smb::SmbServer;
using share::smb::SmbServers;

// What is declared first outlives what uses it.
struct Ways {
    Ways(const registry::RegistryPaths& paths, SmbServer::Surroundings surroundings)
        : settings(paths, calls), smbServers(std::move(surroundings), addresses()) {}

    SmbServers::Addresses addresses() {
        return [mappings = data::ShareMappings(settings)](std::string_view server) {
            return share::smb::addressOf(mappings(server).value_or(std::string()));
        };
    }
    share::ShareResolver resolver() { return {data::ShareMappings(settings), share::MountTable::systemText}; }

    registry::SystemCalls calls;
    registry::Registry settings;
    SmbServers smbServers;
    share::ThreadWaiter waiter;
    share::LocalFileSystemObject folders{resolver()};
    share::smb::SmbFileSystemObject servers{smbServers, waiter};
};

// Owns the ways that it chooses from.
class MessageFiles final : Ways, public share::RoutedFileSystemObject {
public:
    MessageFiles(const registry::RegistryPaths& paths, SmbServer::Surroundings surroundings)
        : Ways(paths, std::move(surroundings)), RoutedFileSystemObject(resolver(), folders, servers) {}
};

} // namespace

std::function<std::unique_ptr<share::FileSystemObject>()> messageFiles(registry::RegistryPaths paths,
                                                                       SmbServer::Surroundings servers) {
    return [paths = std::move(paths), servers = std::move(servers)] {
        return std::make_unique<MessageFiles>(paths, servers);
    };
}

} // namespace app
