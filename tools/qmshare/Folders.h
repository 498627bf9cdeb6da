// SPDX-FileCopyrightText: 2026 The qmClient authors
// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once
// Reads folders and hands their entries out page by page. A listing is taken as a whole when it is asked for;
// what the client does not fetch of the last few is forgotten. The context must outlive it.

#include "platform/share/smb/FolderPage.h"
#include "platform/share/smb/Messages.h"
#include "tools/qmshare/SmbContext.h"

#include <cstddef>
#include <cstdint>
#include <map>
#include <string>
#include <vector>

namespace qmshare {

class Folders {
public:
    explicit Folders(SmbContext& context) : m_context(context) {}

    // -1 and errno when the folder cannot be read. The number is the client's.
    int list(std::uint32_t number, const std::string& url);
    bool has(std::uint32_t number) const { return m_listings.contains(number); }
    // The next page of a listing that is there.
    share::smb::Response nextPage(std::uint32_t number);

private:
    struct Listing {
        std::vector<share::smb::FolderEntry> entries;
        std::size_t next = 0;
    };

    SmbContext& m_context;
    std::map<std::uint32_t, Listing> m_listings;
};

} // namespace qmshare
