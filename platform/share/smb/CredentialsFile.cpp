// SPDX-FileCopyrightText: 2026 The qmClient authors
// SPDX-License-Identifier: GPL-3.0-or-later
#include "platform/share/smb/CredentialsFile.h"

#include "platform/basic/RuntimeError.h"
#include "platform/share/FileDescriptor.h"

#include <fcntl.h>
#include <sys/stat.h>
#include <unistd.h>

#include <algorithm>
#include <cerrno>
#include <optional>

namespace share::smb {
namespace {

constexpr std::size_t kMaximumSize = 4096; // of three short lines and a few remarks
constexpr mode_t kOthers = S_IRWXG | S_IRWXO;

// Nothing for a line of another name.
std::optional<std::string_view> valueIn(std::string_view line, std::string_view name) {
    line.remove_prefix(std::min(line.find_first_not_of(" \t"), line.size()));
    if (!line.starts_with(name) || !line.substr(name.size()).starts_with('='))
        return std::nullopt;
    std::string_view value = line.substr(name.size() + 1);
    if (value.ends_with('\r'))
        value.remove_suffix(1);
    return value;
}

std::optional<std::string_view> valueOf(std::string_view text, std::string_view name) {
    std::optional<std::string_view> found;
    while (!text.empty()) {
        const std::size_t end = std::min(text.find('\n'), text.size());
        if (const auto value = valueIn(text.substr(0, end), name))
            found = value;
        text.remove_prefix(std::min(end + 1, text.size()));
    }
    return found;
}

[[noreturn]] void refuse(std::int32_t number, const std::string& path, std::string_view why) {
    throw basic::RuntimeError(number, "read: " + path + ": " + std::string(why));
}

void checkOwner(int descriptor, const std::string& path) {
    struct stat status {};
    if (::fstat(descriptor, &status) != 0)
        throw basic::errorFromErrno(errno, "read", path);
    if (!S_ISREG(status.st_mode))
        refuse(basic::kPathFileAccess, path, "Not a regular file");
    if ((status.st_mode & kOthers) != 0 || (status.st_uid != ::geteuid() && status.st_uid != 0))
        refuse(basic::kPermissionDenied, path, "others can read the password in it");
}

} // namespace

Credentials readCredentialsFile(const std::string& path) {
    const FileDescriptor file(::open(path.c_str(), O_RDONLY | O_CLOEXEC | O_NOCTTY | O_NONBLOCK));
    if (!file.isOpen() && (errno == ENOENT || errno == ENOTDIR))
        return {};
    if (!file.isOpen())
        throw basic::errorFromErrno(errno, "read", path);
    checkOwner(file.get(), path);
    std::string text(kMaximumSize + 1, '\0');
    const ssize_t size = ::read(file.get(), text.data(), text.size());
    if (size < 0)
        throw basic::errorFromErrno(errno, "read", path);
    if (static_cast<std::size_t>(size) > kMaximumSize)
        refuse(basic::kPathFileAccess, path, "too large for a credentials file");
    Credentials credentials = parseCredentials({text.data(), static_cast<std::size_t>(size)});
    wipe(text.data(), text.size());
    if (credentials.isAnybody())
        refuse(basic::kPathFileAccess, path, "it names no user");
    return credentials;
}

Credentials parseCredentials(std::string_view text) {
    Credentials credentials =
        Credentials::of(valueOf(text, "username").value_or(""), valueOf(text, "password").value_or(""));
    if (credentials.domain.empty())
        credentials.domain = valueOf(text, "domain").value_or("");
    return credentials;
}

} // namespace share::smb
