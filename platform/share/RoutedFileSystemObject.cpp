// SPDX-FileCopyrightText: 2026 The qmClient authors
// SPDX-License-Identifier: GPL-3.0-or-later
#include "platform/share/RoutedFileSystemObject.h"

#include "platform/basic/RuntimeError.h"

namespace share {

FileSystemObject& RoutedFileSystemObject::to(std::string_view path) const {
    try {
        const Route route = m_resolver.resolve(UncPath::parsePattern(path));
        return route.way == Way::Server ? m_servers : m_folders;
    } catch (const basic::RuntimeError&) {
        return m_folders;
    }
}

} // namespace share
