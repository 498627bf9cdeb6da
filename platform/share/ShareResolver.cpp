// SPDX-FileCopyrightText: 2026 The qmClient authors
// SPDX-License-Identifier: GPL-3.0-or-later
#include "platform/share/ShareResolver.h"

#include "platform/basic/TextCompare.h"

#include <algorithm>

namespace share {
namespace {

constexpr std::string_view kMappedShare = "Quillamar_0$";

bool holds(const ShareMount& mount, const UncPath& path) {
    return basic::equalText(mount.server, path.server()) && basic::equalText(mount.share, path.share()) &&
           mount.below.size() <= path.components().size() &&
           std::equal(mount.below.begin(), mount.below.end(), path.components().begin(),
                      [](const std::string& a, const std::string& b) { return basic::equalText(a, b); });
}

Route below(std::string folder, const UncPath& path, std::size_t skipped) {
    const auto& components = path.components();
    return {Way::Folder,
            std::move(folder),
            {components.begin() + static_cast<std::ptrdiff_t>(skipped), components.end()}};
}

} // namespace

Route ShareResolver::resolve(const UncPath& path) const {
    if (std::optional<Route> route = mapped(path))
        return *route;
    if (std::optional<Route> route = mounted(path))
        return *route;
    return {Way::Server, {}, path.components()};
}

std::optional<SlowMount> ShareResolver::slowMountOf(const Route& route) const {
    if (!m_mountInfo || route.way != Way::Folder)
        return std::nullopt;
    std::string end = route.folder;
    for (const std::string& component : route.components)
        end.append("/").append(component);
    return MountTable(m_mountInfo()).slowMountOf(end);
}

ShareResolver ShareResolver::settledFor(const UncPath& path) const {
    return {[answer = mappingOf(path.server())](std::string_view) { return answer; }, m_mountInfo};
}

std::optional<Route> ShareResolver::mapped(const UncPath& path) const {
    if (!basic::equalText(path.share(), kMappedShare))
        return std::nullopt;
    std::optional<std::string> folder = mappingOf(path.server());
    if (!folder || !folder->starts_with('/'))
        return std::nullopt;
    return below(std::move(*folder), path, 0);
}

std::optional<Route> ShareResolver::mounted(const UncPath& path) const {
    if (!m_mountInfo)
        return std::nullopt;
    const MountTable table(m_mountInfo());
    const ShareMount* best = nullptr;
    for (const ShareMount& mount : table.shares())
        // The deepest one is the most direct; of equal ones, a later mount may hide an earlier one.
        if (holds(mount, path) && (best == nullptr || mount.below.size() >= best->below.size()))
            best = &mount;
    if (best == nullptr)
        return std::nullopt;
    return below(best->mountPoint, path, best->below.size());
}

} // namespace share
