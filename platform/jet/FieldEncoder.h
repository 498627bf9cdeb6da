// SPDX-FileCopyrightText: 2026 The qmClient authors
// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once
// The stored bytes of one value. Of memo and OLE columns these are the value's own bytes, wherever
// LongValueWriter puts them; a Boolean has none, its value is its bit in the row.
// Layout: docs/jet4-format.md, "Values".

#include "platform/basic/Variant.h"
#include "platform/jet/ByteBuilder.h"
#include "platform/jet/TableDefinition.h"

namespace jet {

// `value` is of the column's own kind (toColumnValue) and not Null. kProviderFailure when a text or binary
// value is longer than the column.
Bytes encodeField(const basic::Variant& value, const Column& column);

} // namespace jet
