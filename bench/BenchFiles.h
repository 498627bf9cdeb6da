// SPDX-FileCopyrightText: 2026 The qmClient authors
// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once
// The files that scripts/bench has made before this program starts, in the folder of its command line.

#include <cstdint>
#include <string>

namespace bench {

inline constexpr std::int64_t kFewRows = 10;
inline constexpr std::int64_t kManyRows = 1'000'000;
inline constexpr std::int64_t kCallRows = 100'000;

const std::string& folder();
std::string shortRowsFile(std::int64_t rows);
std::string callsFile();

} // namespace bench
