// SPDX-FileCopyrightText: 2026 The qmClient authors
// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once
// What page 0 says about a database. Reading it settles whether the file is a Jet 4 database at all; other
// members of the family are recognised and refused by name. A password guards the surface of the engine
// only, data is not encoded by it, so it plays no part in reading. Layout: docs/jet4-format.md, "Header".

#include "platform/jet/CommitWords.h"
#include "platform/jet/PageSource.h"
#include "platform/share/File.h"

#include <cstdint>

namespace jet {

struct DatabaseHeader {
    std::uint32_t databaseKey = 0; // 0 = pages are plain
    std::uint16_t codePage = 0;
    std::uint16_t sortOrder = 0; // LCID
    std::uint8_t sortVersion = 0;
    double created = 0;              // days since 1899-12-30
    std::uint64_t creationStamp = 0; // the same as stored; changes when the database is compacted
    CommitWords commitWords;

    // Throws RuntimeError kProviderFailure for anything that is no whole Jet 4 header.
    static DatabaseHeader read(share::File& file);
    static DatabaseHeader parse(PageBytes page, std::string_view file);
};

} // namespace jet
