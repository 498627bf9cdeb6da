// SPDX-FileCopyrightText: 2026 The qmClient authors
// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once
// This machine's answer to the platform's version call. A Linux system is none of the platform's families, so
// the platform id is one that no table knows; the build number is the kernel's version packed as the kernel
// itself packs it (16 bits major, 8 minor, 8 patch), and the service-pack text names kernel and distribution.

#include "errors/GetWinVer.h"

#include <string_view>

namespace errors {

inline constexpr std::uint32_t kPlatformLinux = 255;

// `kernel` as uname tells it ("6.1.0-18-amd64"), `osRelease` the content of the os-release file.
bool versionFrom(std::string_view kernel, std::string_view osRelease, VersionRecord& record);
// The same from the running system.
bool systemVersion(VersionRecord& record);

} // namespace errors
