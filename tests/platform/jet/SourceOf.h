// SPDX-FileCopyrightText: 2026 The qmClient authors
// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once
// A file image with a reader over it, as most tests need them.

#include "platform/jet/PageReader.h"
#include "tests/platform/jet/Images.h"
#include "tests/platform/jet/MemoryFile.h"

namespace jet::test {

struct SourceOf {
    explicit SourceOf(const Image& image) : file(image.bytes), pages(file, 0) {}

    MemoryFile file;
    PageReader pages;
};

} // namespace jet::test
