// SPDX-FileCopyrightText: 2026 The qmClient authors
// SPDX-License-Identifier: GPL-3.0-or-later
#include "platform/share/MountTable.h"

#include "platform/basic/TextCompare.h"

#include <sys/sysmacros.h>

#include <algorithm>
#include <array>
#include <charconv>
#include <filesystem>
#include <fstream>
#include <iterator>
#include <optional>

namespace share {
namespace {

constexpr std::array<std::string_view, 2> kShareTypes{"cifs", "smb3"};
// Locks stay here, or reading does not ask the server (cache=).
constexpr std::array<std::string_view, 6> kOptionsWithoutLocks{
    "nobrl", "cache=loose", "cache=singleclient", "nolock", "local_lock=all", "local_lock=posix"};
// autofs mounts at the first step into the folder.
constexpr std::array<std::string_view, 12> kServerTypes{
    "cifs", "smb3", "nfs", "nfs4", "9p", "ceph", "afs", "coda", "lustre", "virtiofs", "vboxsf", "autofs"};
constexpr std::string_view kLayersType = "fuse.fuse-overlayfs";
constexpr std::size_t kIdField = 0;
constexpr std::size_t kDeviceField = 2;
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

struct MountLine {
    std::string_view id;
    std::string_view device;
    std::string_view root;
    std::string_view mountPoint;
    std::string_view type;
    std::string_view source;
    std::string_view options; // of the file system
};

std::optional<MountLine> mountLine(std::string_view line) {
    const std::vector<std::string_view> fields = splitAt(line, " ");
    if (fields.size() < kFirstOptionalField)
        return std::nullopt;
    const auto dash = std::find(fields.begin() + kFirstOptionalField, fields.end(), "-");
    const auto behind = fields.end() - dash;
    if (behind < 3)
        return std::nullopt;
    return MountLine{
        fields[kIdField], fields[kDeviceField],     fields[kRootField], fields[kMountPointField], dash[1],
        dash[2],          behind > 3 ? dash[3] : ""};
}

template <typename Known, typename Value>
bool isOneOf(const Known& known, const Value& value) {
    return std::find(known.begin(), known.end(), value) != known.end();
}

std::optional<ShareMount> shareMount(const MountLine& line) {
    if (!isOneOf(kShareTypes, line.type))
        return std::nullopt;
    std::vector<std::string> source = pathParts(line.source);
    if (source.size() < 2)
        return std::nullopt;
    ShareMount mount{source[0], source[1], {}, unescaped(line.mountPoint)};
    mount.below.assign(source.begin() + 2, source.end());
    for (std::string& part : pathParts(line.root))
        mount.below.push_back(std::move(part));
    return mount;
}

std::optional<unsigned> number(std::string_view digits) {
    unsigned value = 0;
    const auto [end, failure] = std::from_chars(digits.data(), digits.data() + digits.size(), value);
    if (failure != std::errc() || end != digits.data() + digits.size())
        return std::nullopt;
    return value;
}

std::optional<dev_t> deviceOf(std::string_view field) {
    const std::size_t colon = std::min(field.find(':'), field.size());
    const std::optional<unsigned> major = number(field.substr(0, colon));
    const std::optional<unsigned> minor = number(field.substr(std::min(colon + 1, field.size())));
    if (!major || !minor)
        return std::nullopt;
    return makedev(*major, *minor);
}

// A program's own file system (FUSE), but for those on a disk of this machine: fuseblk, a container's layers.
bool isOfAProgram(std::string_view type) {
    return type == "fuse" || (type.starts_with("fuse.") && type != kLayersType);
}

// Such a program may pass locks on or not; nothing tells which.
bool keepsLocks(const MountLine& line) {
    if (isOfAProgram(line.type))
        return true;
    const std::vector<std::string_view> options = splitAt(line.options, ",");
    return std::ranges::any_of(options,
                               [](std::string_view option) { return isOneOf(kOptionsWithoutLocks, option); });
}

bool liesIn(std::string_view mountPoint, std::string_view path) {
    if (mountPoint == "/")
        return path.starts_with('/');
    return path.starts_with(mountPoint) &&
           (path.size() == mountPoint.size() || path[mountPoint.size()] == '/');
}

// A mapping is typed by people: "//mnt/q/" and "/mnt/./q" are "/mnt/q".
std::string withoutDetours(std::string_view path) {
    const std::string normal = std::filesystem::path(path).lexically_normal().string();
    return normal.substr(std::min(normal.find_first_not_of('/'), normal.size())).insert(0, 1, '/');
}

} // namespace

MountTable::MountTable(std::string_view mountInfo) {
    for (const std::string_view text : splitAt(mountInfo, "\n")) {
        const std::optional<MountLine> line = mountLine(text);
        if (!line)
            continue;
        m_mounts.push_back({{std::string(line->id), unescaped(line->mountPoint)},
                            isOneOf(kServerTypes, line->type) || isOfAProgram(line->type)});
        if (std::optional<ShareMount> mount = shareMount(*line))
            m_shares.push_back(std::move(*mount));
        const std::optional<dev_t> device = deviceOf(line->device);
        if (device && keepsLocks(*line))
            m_withoutLocks.push_back(*device);
    }
}

std::optional<SlowMount> MountTable::slowMountOf(std::string_view path) const {
    const std::string folded = basic::foldCase(withoutDetours(path));
    const Mount* best = nullptr;
    std::size_t length = 0;
    for (const Mount& candidate : m_mounts) {
        const std::string point = basic::foldCase(candidate.mount.mountPoint);
        // Of two at the same place the later one hides the earlier one.
        if (!liesIn(point, folded) || point.size() < length)
            continue;
        best = &candidate;
        length = point.size();
    }
    return best != nullptr && best->isSlow ? std::optional(best->mount) : std::nullopt;
}

bool MountTable::locksAreShared(dev_t device) const {
    return !isOneOf(m_withoutLocks, device);
}

std::string MountTable::systemText() {
    std::ifstream stream("/proc/self/mountinfo", std::ios::binary);
    return {std::istreambuf_iterator<char>(stream), std::istreambuf_iterator<char>()};
}

} // namespace share
