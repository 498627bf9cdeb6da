// SPDX-FileCopyrightText: 2026 The qmClient authors
// SPDX-License-Identifier: GPL-3.0-or-later
#include "platform/share/smb/FolderPage.h"

#include "platform/share/smb/Messages.h"
#include "platform/share/smb/PacketReader.h"
#include "platform/share/smb/PacketWriter.h"

namespace share::smb {
namespace {

constexpr std::size_t kEntryHead = sizeof(std::uint8_t) + sizeof(std::uint32_t);

} // namespace

std::vector<std::byte> encodeFolderPage(std::span<const FolderEntry> entries, std::size_t& taken) {
    PacketWriter page(kMaximumDataBytes);
    taken = 0;
    for (const FolderEntry& entry : entries) {
        if (page.size() + kEntryHead + entry.name.size() > kMaximumDataBytes)
            break;
        page.number(static_cast<std::uint8_t>(entry.isFolder));
        page.text(entry.name, kMaximumNameBytes);
        ++taken;
    }
    return page.take();
}

std::vector<FolderEntry> decodeFolderPage(std::span<const std::byte> page) {
    PacketReader reader(page);
    std::vector<FolderEntry> entries;
    while (!reader.atEnd()) {
        const bool isFolder = reader.flag();
        entries.push_back({isFolder, reader.text(kMaximumNameBytes)});
    }
    return entries;
}

} // namespace share::smb
