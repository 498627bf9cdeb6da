// SPDX-FileCopyrightText: 2026 The qmClient authors
// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once
// Index pages laid out byte by byte.

#include "tests/platform/jet/Images.h"

namespace jet::test {

struct IndexImage {
    bool isLeaf = true;
    PageNumber owner = kLogDefinition;
    PageNumber previous = 0;
    PageNumber next = 0;
    PageNumber tail = 0;
    std::size_t prefix = 0;
    std::vector<Bytes> entries{}; // as stored, so all but the first without their prefix
};

// The key of a number, then the row.
Bytes leafEntry(std::uint32_t key, RowPointer row);
Bytes nodeEntry(std::uint32_t key, RowPointer row, PageNumber child);
void putIndexPage(Image& image, PageNumber page, const IndexImage& index);

} // namespace jet::test
