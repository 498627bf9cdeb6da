// SPDX-FileCopyrightText: 2026 The qmClient authors
// SPDX-License-Identifier: GPL-3.0-or-later
#include "platform/jet/TableContents.h"

#include "platform/basic/RuntimeError.h"

#include <algorithm>
#include <optional>

namespace jet {
namespace {

UsageMap readWithinFile(PageSource& source, RowPointer where, std::string_view name) {
    UsageMap map = UsageMap::read(source, where, name);
    map.pagesWithinFile();
    return map;
}

std::optional<UsageMap> readIndexMap(PageSource& source, const RealIndex& index, std::string_view name) {
    try {
        UsageMap map = readWithinFile(source, index.usageMap, name);
        if (map.contains(index.root))
            return map;
    } catch (const basic::RuntimeError& error) {
        if (error.number() != basic::kProviderFailure)
            throw; // the file, not what is in it
    }
    return std::nullopt;
}

void append(std::vector<PageNumber>& pages, const std::vector<PageNumber>& more) {
    pages.insert(pages.end(), more.begin(), more.end());
}

} // namespace

TableContents TableContents::read(PageSource& source, const TableDefinition& table, std::string_view name) {
    TableContents result;
    result.rowMaps.push_back(readWithinFile(source, table.ownedMap, name));
    result.rowMaps.push_back(readWithinFile(source, table.freeMap, name));
    for (const RealIndex& index : table.realIndexes) {
        if (auto map = readIndexMap(source, index, name))
            result.indexMaps.push_back(std::move(*map));
        else
            result.isSound = false;
    }
    for (const LongValueMaps& maps : table.longValueMaps) {
        if (maps.isBroken())
            continue;
        result.longValueMaps.push_back(readWithinFile(source, maps.owned, name));
        result.longValueMaps.push_back(readWithinFile(source, maps.free, name));
    }
    return result;
}

std::vector<PageNumber> TableContents::emptiedPages() const {
    std::vector<PageNumber> pages = rowMaps.front().pages();
    for (const UsageMap& map : rowMaps)
        append(pages, map.bitmapPages());
    for (const UsageMap& map : indexMaps) {
        append(pages, map.pages());
        append(pages, map.bitmapPages());
    }
    for (std::size_t i = 0; i < longValueMaps.size(); i += 2)
        append(pages, longValueMaps[i].pages());
    std::ranges::sort(pages);
    return pages;
}

std::vector<RowPointer> TableContents::emptiedMaps() const {
    std::vector<RowPointer> maps;
    for (const UsageMap& map : rowMaps)
        maps.push_back(map.where());
    for (const UsageMap& map : indexMaps)
        maps.push_back(map.where());
    return maps;
}

std::vector<PageNumber> TableContents::longValueBitmapPages() const {
    std::vector<PageNumber> pages;
    for (const UsageMap& map : longValueMaps)
        append(pages, map.bitmapPages());
    return pages;
}

std::vector<PageNumber> TableContents::mapPages() const {
    std::vector<PageNumber> pages = longValueBitmapPages();
    for (const auto* maps : {&rowMaps, &indexMaps, &longValueMaps})
        for (const UsageMap& map : *maps)
            pages.push_back(map.where().page);
    return pages;
}

bool TableContents::hasLongValues() const {
    return std::ranges::any_of(longValueMaps, [](const UsageMap& map) { return !map.pages().empty(); });
}

} // namespace jet
