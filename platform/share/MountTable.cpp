// SPDX-FileCopyrightText: 2026 The qmClient authors
// SPDX-License-Identifier: GPL-3.0-or-later
#include "platform/share/MountTable.h"

#include <algorithm>
#include <array>
#include <fstream>
#include <iterator>
#include <optional>

namespace share {
namespace {

constexpr std::array<std::string_view, 2> kShareTypes{"cifs", "smb3"};
constexpr std::size_t kRootField = 3;
constexpr std::size_t kMountPointField = 4;
constexpr std::size_t kFirstOptionalField = 6;

std::vector<std::string_view> splitAt(std::string_view text, std::string_view separators) {
    std::vector<std::string_view> parts;
    while (!text.empty()) {
        const std::size_t end = std::min(text.find_first_of(separators), text.size());
        if (end > 0)
            parts.push_back(text.substr(0, end));
        text.remove_prefix(std::min(end + 1, text.size()));
    }
    return parts;
}

bool isOctal(std::string_view digits) {
    return digits.size() == 3 && digits[0] <= '3' &&
           std::all_of(digits.begin(), digits.end(), [](char c) { return c >= '0' && c <= '7'; });
}

// Blanks, tabs, line ends and backslashes are written as a backslash and three octal digits.
std::string unescaped(std::string_view field) {
    std::string text;
    for (std::size_t i = 0; i < field.size(); ++i) {
        if (field[i] == '\\' && isOctal(field.substr(i + 1, 3))) {
            text.push_back(static_cast<char>((field[i + 1] - '0') * 64 + (field[i + 2] - '0') * 8 +
                                             (field[i + 3] - '0')));
            i += 3;
        } else {
            text.push_back(field[i]);
        }
    }
    return text;
}

std::vector<std::string> pathParts(std::string_view escaped) {
    const std::string path = unescaped(escaped);
    std::vector<std::string> parts;
    for (std::string_view part : splitAt(path, "/\\"))
        parts.emplace_back(part);
    return parts;
}

std::optional<ShareMount> shareMount(std::string_view line) {
    const std::vector<std::string_view> fields = splitAt(line, " ");
    if (fields.size() < kFirstOptionalField)
        return std::nullopt;
    const auto dash = std::find(fields.begin() + kFirstOptionalField, fields.end(), "-");
    if (fields.end() - dash < 3 ||
        std::find(kShareTypes.begin(), kShareTypes.end(), dash[1]) == kShareTypes.end())
        return std::nullopt;
    std::vector<std::string> source = pathParts(dash[2]);
    if (source.size() < 2)
        return std::nullopt;
    ShareMount mount{source[0], source[1], {}, unescaped(fields[kMountPointField])};
    mount.below.assign(source.begin() + 2, source.end());
    for (std::string& part : pathParts(fields[kRootField]))
        mount.below.push_back(std::move(part));
    return mount;
}

} // namespace

MountTable::MountTable(std::string_view mountInfo) {
    for (std::string_view line : splitAt(mountInfo, "\n"))
        if (std::optional<ShareMount> mount = shareMount(line))
            m_shares.push_back(std::move(*mount));
}

std::string MountTable::systemText() {
    std::ifstream stream("/proc/self/mountinfo", std::ios::binary);
    return {std::istreambuf_iterator<char>(stream), std::istreambuf_iterator<char>()};
}

} // namespace share
