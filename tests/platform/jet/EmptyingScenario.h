// SPDX-FileCopyrightText: 2026 The qmClient authors
// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once
// Databases with a full table CallLog, of different shapes, for the tests of emptying it.

#include "platform/basic/Variant.h"
#include "platform/jet/TableDefinition.h"
#include "platform/share/MemoryFile.h"
#include "tests/platform/jet/RecordingFile.h"

#include <string>
#include <vector>

namespace jet::test {

inline constexpr std::string_view kLog = "CallLog";

// A call log as the server keeps it and the table MailboxInfo with a row; every third call has a long note.
FileImage callLogDatabase(int calls);
// The same after it was emptied once and filled again: with free pages inside of the file.
FileImage refilledDatabase(int calls);
// With so many columns that the indexes lie behind the first sector of the definition's page.
FileImage wideDatabase(int calls);
// With so many columns that they lie on a second page.
FileImage twoPageDatabase(int calls);
// On a third one, so that of the pages which change one points to the next.
FileImage threePageDatabase(int calls);
// With so many pages that the map of free pages has to change its kind for the next one.
FileImage fullMapDatabase();

// With the least map of long values that there can be: a row with the number of one bitmap page, no more.
FileImage leastMapDatabase(int calls);

// A row for the table CallLog of a database.
std::vector<basic::Variant> anyRow(const TableDefinition& log, const std::string& callId,
                                   std::size_t note = 10);
// Adds one.
void addCall(share::File& file, const std::string& callId, std::size_t note = 10);

// All rows of CallLog gone, by the engine's own means.
void emptyLog(share::File& file);

} // namespace jet::test
