// SPDX-FileCopyrightText: 2026 The qmClient authors
// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once
// What a settings file may hold at most. Names and depth are the platform's own limits, the others keep
// memory and time bounded whatever a file says; a real store has a few hundred bytes.

#include <cstddef>

namespace registry {

inline constexpr std::size_t kMaxDepth = 512;
inline constexpr std::size_t kMaxKeyName = 255;     // UTF-16 units
inline constexpr std::size_t kMaxValueName = 16383; // UTF-16 units
inline constexpr std::size_t kMaxKeys = 100'000;
inline constexpr std::size_t kMaxValues = 500'000;
inline constexpr std::size_t kMaxFileSize = std::size_t{16} * 1024 * 1024;

} // namespace registry
