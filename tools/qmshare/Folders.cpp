// SPDX-FileCopyrightText: 2026 The qmClient authors
// SPDX-License-Identifier: GPL-3.0-or-later
#include "tools/qmshare/Folders.h"

#include "platform/share/FolderListing.h"

#include <sys/stat.h>

#include <cerrno>
#include <optional>
#include <string_view>

namespace qmshare {
namespace {

using share::smb::FolderEntry;

constexpr std::size_t kMaximumListings = 4;
constexpr std::uint16_t kDirectory = 0x10; // of the protocol's file attributes

// A name that is too long for a page is none that a path could hold.
bool isOfUse(std::string_view name) {
    return name != "." && name != ".." && name.size() <= share::smb::kMaximumNameBytes;
}

// Nothing and errno when the folder has more names than a program should look at.
std::optional<std::vector<FolderEntry>> entriesOf(SMBCCTX* context, SMBCFILE* folder) {
    std::vector<FolderEntry> entries;
    struct stat status {};
    errno = 0;
    while (const libsmb_file_info* entry =
               ::smbc_getFunctionReaddirPlus2(context)(context, folder, &status)) {
        if (entries.size() >= share::FolderListing::kMaximumNames) {
            errno = E2BIG;
            return std::nullopt;
        }
        if (isOfUse(entry->name))
            entries.push_back({(entry->attrs & kDirectory) != 0, entry->name});
        errno = 0;
    }
    if (errno != 0)
        return std::nullopt;
    return entries;
}

} // namespace

int Folders::list(std::uint32_t number, const std::string& url) {
    SMBCCTX* context = m_context.get();
    SMBCFILE* folder = ::smbc_getFunctionOpendir(context)(context, url.c_str());
    if (folder == nullptr)
        return -1;
    std::optional<std::vector<FolderEntry>> entries = entriesOf(context, folder);
    const int failure = errno;
    ::smbc_getFunctionClosedir(context)(context, folder);
    errno = failure;
    if (!entries)
        return -1;
    if (m_listings.size() >= kMaximumListings)
        m_listings.erase(m_listings.begin());
    m_listings[number].entries = std::move(*entries);
    return 0;
}

share::smb::Response Folders::nextPage(std::uint32_t number) {
    Listing& listing = m_listings.at(number);
    share::smb::Response response;
    std::size_t taken = 0;
    response.data = share::smb::encodeFolderPage(std::span(listing.entries).subspan(listing.next), taken);
    listing.next += taken;
    response.more = listing.next < listing.entries.size();
    if (!response.more)
        m_listings.erase(number);
    return response;
}

} // namespace qmshare
