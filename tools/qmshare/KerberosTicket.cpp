// SPDX-FileCopyrightText: 2026 The qmClient authors
// SPDX-License-Identifier: GPL-3.0-or-later
#include "tools/qmshare/KerberosTicket.h"

#include <unistd.h>

#include <cstdlib>
#include <filesystem>
#include <string>
#include <string_view>
#include <system_error>

namespace qmshare {
namespace {

constexpr std::string_view kFile = "FILE:";

std::string store() {
    const char* told = std::getenv("KRB5CCNAME");
    return told != nullptr && *told != '\0' ? told : "/tmp/krb5cc_" + std::to_string(::geteuid());
}

} // namespace

bool hasKerberosTicket() {
    std::string place = store();
    if (place.starts_with(kFile))
        place.erase(0, kFile.size());
    std::error_code ignored;
    const bool isFile = place.starts_with('/');
    return !isFile || std::filesystem::exists(place, ignored);
}

} // namespace qmshare
