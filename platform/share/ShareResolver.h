// SPDX-FileCopyrightText: 2026 The qmClient authors
// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once
// Decides which way a network name is reached: by a folder that the administrator mapped for the server's
// call-log share, by a mount of the share found on this machine, or else from the server itself. The mount
// table is read anew for each question, because shares come and go with the network.

#include "platform/share/MountTable.h"
#include "platform/share/UncPath.h"

#include <functional>
#include <optional>
#include <string>
#include <string_view>
#include <vector>

namespace share {

enum class Way {
    Folder, // a folder of this machine, mapped or mounted
    Server, // nothing stands for it here: only the server itself can answer
};

struct Route {
    Way way = Way::Server;
    std::string folder;                  // absolute; empty with Way::Server
    std::vector<std::string> components; // what follows below `folder`, or below the share
};

class ShareResolver {
public:
    // The folder that stands for \\server\Quillamar_0$, if the administrator mapped one.
    using Mapping = std::function<std::optional<std::string>(std::string_view server)>;

    ShareResolver(Mapping mapping, MountInfo mountInfo)
        : m_mapping(std::move(mapping)), m_mountInfo(std::move(mountInfo)) {}

    Route resolve(const UncPath& path) const;
    // The mount that the end of a route lies on, if a server or a program answers for it.
    std::optional<SlowMount> slowMountOf(const Route& route) const;
    // One that keeps what the administrator's mapping says of the path's server now: for another thread,
    // which must not look into the settings, and for paths of that server alone.
    ShareResolver settledFor(const UncPath& path) const;
    // What the mapping says of it.
    std::optional<std::string> mappingOf(std::string_view server) const {
        return m_mapping ? m_mapping(server) : std::nullopt;
    }
    const MountInfo& mountInfo() const noexcept { return m_mountInfo; }

private:
    std::optional<Route> mapped(const UncPath& path) const;
    std::optional<Route> mounted(const UncPath& path) const;

    Mapping m_mapping;
    MountInfo m_mountInfo;
};

} // namespace share
