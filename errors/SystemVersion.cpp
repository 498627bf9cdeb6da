// SPDX-FileCopyrightText: 2026 The qmClient authors
// SPDX-License-Identifier: GPL-3.0-or-later
#include "errors/SystemVersion.h"

#include <sys/utsname.h>

#include <algorithm>
#include <charconv>
#include <fstream>
#include <iterator>
#include <string>

namespace errors {
namespace {

// The next number of "6.1.0-18-amd64"; 0 where there is none.
std::uint32_t takeNumber(std::string_view& text) {
    std::uint32_t number = 0;
    const auto [end, error] = std::from_chars(text.data(), text.data() + text.size(), number);
    text.remove_prefix(static_cast<std::size_t>(end - text.data()));
    if (text.starts_with('.'))
        text.remove_prefix(1);
    return error == std::errc() ? number : 0;
}

std::string_view unquoted(std::string_view value) {
    if (value.size() >= 2 && (value.front() == '"' || value.front() == '\'') && value.back() == value.front())
        return value.substr(1, value.size() - 2);
    return value;
}

std::string_view distributionOf(std::string_view osRelease) {
    constexpr std::string_view kKey = "PRETTY_NAME=";
    while (!osRelease.empty()) {
        const std::string_view line = osRelease.substr(0, osRelease.find('\n'));
        if (line.starts_with(kKey))
            return unquoted(line.substr(kKey.size()));
        osRelease.remove_prefix(std::min(line.size() + 1, osRelease.size()));
    }
    return {};
}

// Room for the NUL stays, and no character is cut in two.
std::string_view fitting(std::string_view text, std::size_t capacity) {
    if (text.size() < capacity)
        return text;
    std::size_t end = capacity - 1;
    while (end > 0 && (static_cast<unsigned char>(text[end]) & 0xC0U) == 0x80U)
        --end;
    return text.substr(0, end);
}

std::string readFile(const char* path) {
    std::ifstream in(path, std::ios::binary);
    return {std::istreambuf_iterator<char>(in), std::istreambuf_iterator<char>()};
}

} // namespace

bool versionFrom(std::string_view kernel, std::string_view osRelease, VersionRecord& record) {
    if (record.size != kVersionRecordSize)
        return false;
    std::string text = "Linux " + std::string(kernel);
    if (const std::string_view distribution = distributionOf(osRelease); !distribution.empty())
        text.append(", ").append(distribution);
    record.major = takeNumber(kernel);
    record.minor = takeNumber(kernel);
    const std::uint32_t patch = takeNumber(kernel);
    record.build = (record.major << 16U) | (std::min(record.minor, 255U) << 8U) | std::min(patch, 255U);
    record.platformId = kPlatformLinux;
    record.servicePack.fill('\0');
    const std::string_view shown = fitting(text, record.servicePack.size());
    std::copy(shown.begin(), shown.end(), record.servicePack.begin());
    return true;
}

bool systemVersion(VersionRecord& record) {
    utsname system{};
    if (::uname(&system) != 0)
        return false;
    std::string osRelease = readFile("/etc/os-release");
    if (osRelease.empty())
        osRelease = readFile("/usr/lib/os-release");
    return versionFrom(system.release, osRelease, record);
}

} // namespace errors
