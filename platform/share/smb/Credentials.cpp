// SPDX-FileCopyrightText: 2026 The qmClient authors
// SPDX-License-Identifier: GPL-3.0-or-later
#include "platform/share/smb/Credentials.h"

namespace share::smb {

Credentials Credentials::of(std::string_view userName, std::string_view password) {
    const std::size_t separator = userName.find_first_of("\\/");
    if (separator == std::string_view::npos)
        return {{}, std::string(userName), Secret(password)};
    return {std::string(userName.substr(0, separator)), std::string(userName.substr(separator + 1)),
            Secret(password)};
}

} // namespace share::smb
