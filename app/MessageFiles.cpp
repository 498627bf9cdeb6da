// SPDX-FileCopyrightText: 2026 The qmClient authors
// SPDX-License-Identifier: GPL-3.0-or-later
#include "app/MessageFiles.h"

#include "data/ShareMappings.h"
#include "platform/registry/Registry.h"
#include "platform/share/LocalFileSystemObject.h"
#include "platform/share/MountTable.h"
#include "platform/share/RoutedFileSystemObject.h"
#include "platform/share/smb/SmbFileSystemObject.h"
#include "platform/share/smb/ThreadWaiter.h"

#include <utility>

namespace app {
namespace {

using share::smb::SmbServer;
using share::smb::SmbServers;

// What is declared first outlives what uses it.
class MessageFiles final : public share::FileSystemObject {
public:
    MessageFiles(const registry::RegistryPaths& paths, SmbServer::Surroundings surroundings)
        : m_registry(paths, m_calls), m_smbServers(std::move(surroundings), addresses()) {}

    bool FileExists(std::string_view path) override { return m_files.FileExists(path); }
    bool FolderExists(std::string_view path) override { return m_files.FolderExists(path); }
    std::vector<std::string> SubFolders(std::string_view path) override { return m_files.SubFolders(path); }
    void DeleteFile(std::string_view pattern, bool force) override { m_files.DeleteFile(pattern, force); }
    std::unique_ptr<share::File> openFile(std::string_view path, share::OpenMode mode) override {
        return m_files.openFile(path, mode);
    }

private:
    SmbServers::Addresses addresses() {
        return [mappings = data::ShareMappings(m_registry)](std::string_view server) {
            return share::smb::addressOf(mappings(server).value_or(std::string()));
        };
    }
    share::ShareResolver resolver() {
        return {data::ShareMappings(m_registry), share::MountTable::systemText};
    }

    registry::SystemCalls m_calls;
    registry::Registry m_registry;
    SmbServers m_smbServers;
    share::smb::ThreadWaiter m_waiter;
    share::LocalFileSystemObject m_folders{resolver()};
    share::smb::SmbFileSystemObject m_servers{m_smbServers, m_waiter};
    share::RoutedFileSystemObject m_files{resolver(), m_folders, m_servers};
};

} // namespace

std::function<std::unique_ptr<share::FileSystemObject>()> messageFiles(registry::RegistryPaths paths,
                                                                       SmbServer::Surroundings servers) {
    return [paths = std::move(paths), servers = std::move(servers)] {
        return std::make_unique<MessageFiles>(paths, servers);
    };
}

} // namespace app
