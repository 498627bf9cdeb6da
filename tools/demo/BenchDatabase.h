// SPDX-FileCopyrightText: 2026 The qmClient authors
// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once
// Databases of any size to measure with: the same rows each time.

#include "platform/share/File.h"

#include <cstdint>

namespace demo {

enum class BenchRows {
    Short, // a number and a few characters, with a primary key only
    Calls, // call-log rows with every column and both indexes
};

// Fills an empty file with a database of one table CallLog.
void fillBenchDatabase(share::File& file, std::uint32_t rows, BenchRows kind);

} // namespace demo
