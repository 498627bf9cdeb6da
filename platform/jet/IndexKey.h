// SPDX-FileCopyrightText: 2026 The qmClient authors
// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once
// Keys of index entries: bytes whose unsigned order is the order of the values. Not every collation and type
// has its keys known; what is not known is refused with kProviderFailure, because a wrong key would hide rows
// from other programs. Layout: docs/jet4-format.md, "Index keys".

#include "platform/basic/Variant.h"
#include "platform/jet/TableDefinition.h"

#include <string>
#include <string_view>

namespace jet {

// Bytes in the char's guise, because std::string compares them as unsigned and holds a number's key without
// an allocation.
using KeyBytes = std::string;

// Appends one column's part. The value is of the column's own kind (toColumnValue) or Null.
void appendKeyPart(KeyBytes& key, const basic::Variant& value, const Column& column, bool ascending);

// The weights of a text in the "General" order, for ASCII letters, digits, blank, underscore and point.
KeyBytes textWeights(std::string_view text);

} // namespace jet
