// SPDX-FileCopyrightText: 2026 The qmClient authors
// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once
// The way to the message files for a thread that reads one: a file system with settings and servers of its
// own, so that nothing is shared with the rest of the program, which may end while a read is still stuck.
// Callable from any thread.

#include "platform/registry/RegistryPaths.h"
#include "platform/share/FileSystemObject.h"
#include "platform/share/smb/SmbServers.h"

#include <functional>
#include <memory>

namespace app {

std::function<std::unique_ptr<share::FileSystemObject>()>
messageFiles(registry::RegistryPaths paths, share::smb::SmbServer::Surroundings servers);

} // namespace app
