// SPDX-FileCopyrightText: 2026 The qmClient authors
// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once
// The library's name for what a network path names: smb://host/share/folder/file, with everything escaped
// that is not plain, so that no character of a name can mean something to the library.

#include "platform/share/UncPath.h"

#include <string>
#include <string_view>

namespace qmshare {

// The host itself; the whole network for the empty name.
std::string serverUrl(std::string_view host);
// `host` is the name or address under which the path's server is reached.
std::string smbUrl(std::string_view host, const share::UncPath& path);
std::string shareUrl(std::string_view host, const share::UncPath& path);

} // namespace qmshare
