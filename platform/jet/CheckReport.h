// SPDX-FileCopyrightText: 2026 The qmClient authors
// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once
// What a check of a database or a table met. Remarks name what is not as stated but is left like that by
// sound engines too; nothing is lost by it.

#include <cstddef>
#include <string>
#include <vector>

namespace jet {

struct CheckReport {
    std::size_t tables = 0;
    std::size_t rows = 0;
    std::size_t longValues = 0;
    std::size_t indexes = 0;
    std::size_t indexEntries = 0;
    std::size_t usedPages = 0;
    std::vector<std::string> remarks;
};

} // namespace jet
