// SPDX-FileCopyrightText: 2026 The qmClient authors
// SPDX-License-Identifier: GPL-3.0-or-later
#include "errors/GetWinVer.h"

#include <algorithm>
#include <string_view>

namespace errors {
namespace {

std::string_view nameOfNt3(std::uint32_t minor) {
    switch (minor) {
    case 0:
        return "NT3";
    case 1:
        return "NT3.1";
    case 5:
        return "NT3.5";
    case 51:
        return "NT3.51";
    default:
        return "";
    }
}

std::string_view nameOfNt(const VersionRecord& record) {
    if (record.major == 3)
        return nameOfNt3(record.minor);
    if (record.major == 4)
        return "NT 4";
    if (record.major == 5 && record.minor == 0)
        return "Win2000";
    return record.major == 5 && record.minor == 1 ? "WinXP" : "";
}

std::string_view nameOf(const VersionRecord& record) {
    switch (record.platformId) {
    case 0:
        return "32s";
    case 1:
        if (record.minor == 0)
            return "95";
        return record.minor == 90 ? "ME" : "98";
    case 2:
        return nameOfNt(record);
    default:
        return "";
    }
}

} // namespace

std::string GetWinVer(const GetVersionExA& getVersionEx) {
    VersionRecord record;
    record.size = kVersionRecordSize;
    if (!getVersionEx(record))
        return {};
    std::string text(nameOf(record));
    text.append(" Build:").append(std::to_string(record.build)).append(" ");
    text.append(record.servicePack.begin(),
                std::find(record.servicePack.begin(), record.servicePack.end(), '\0'));
    return text;
}

} // namespace errors
