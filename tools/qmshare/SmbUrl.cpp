// SPDX-FileCopyrightText: 2026 The qmClient authors
// SPDX-License-Identifier: GPL-3.0-or-later
#include "tools/qmshare/SmbUrl.h"

namespace qmshare {
namespace {

bool isPlain(char c) {
    return (c >= '0' && c <= '9') || (c >= 'A' && c <= 'Z') || (c >= 'a' && c <= 'z') || c == '.' ||
           c == '-' || c == '_';
}

void appendEscaped(std::string& url, std::string_view component) {
    constexpr std::string_view kDigits = "0123456789ABCDEF";
    for (const char c : component) {
        if (isPlain(c)) {
            url.push_back(c);
            continue;
        }
        const auto byte = static_cast<unsigned char>(c);
        url.push_back('%');
        url.push_back(kDigits[byte / 16U]);
        url.push_back(kDigits[byte % 16U]);
    }
}

} // namespace

std::string serverUrl(std::string_view host) {
    std::string url = "smb://";
    appendEscaped(url, host);
    return url;
}

std::string shareUrl(std::string_view host, const share::UncPath& path) {
    std::string url = serverUrl(host);
    url.push_back('/');
    appendEscaped(url, path.share());
    return url;
}

std::string smbUrl(std::string_view host, const share::UncPath& path) {
    std::string url = shareUrl(host, path);
    for (const std::string& component : path.components()) {
        url.push_back('/');
        appendEscaped(url, component);
    }
    return url;
}

} // namespace qmshare
