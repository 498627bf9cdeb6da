// SPDX-FileCopyrightText: 2026 The qmClient authors
// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once
// The return codes of the platform's registry calls.

#include <cstdint>
#include <string>

namespace registry {

inline constexpr std::int32_t kSuccess = 0;
inline constexpr std::int32_t kFileNotFound = 2; // no such key or value
inline constexpr std::int32_t kAccessDenied = 5;
inline constexpr std::int32_t kInvalidParameter = 87;
inline constexpr std::int32_t kDiskFull = 112;
inline constexpr std::int32_t kNoMoreItems = 259;
inline constexpr std::int32_t kCorrupt = 1015;  // the file is damaged
inline constexpr std::int32_t kIoFailed = 1016; // the file could not be read or written

// What a call answers: its code, and for a failure of the file behind the store a sentence with its name and
// line.
struct Result {
    std::int32_t code = kSuccess;
    std::string description;
    explicit operator bool() const noexcept { return code == kSuccess; }
};

} // namespace registry
