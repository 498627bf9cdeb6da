// SPDX-FileCopyrightText: 2026 The qmClient authors
// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once
// Turns a value handed in for a column into the one kind of value the column holds: whole numbers are
// widened, rounded half to even and checked, nothing is read out of text. Null stays Null.

#include "platform/basic/Variant.h"
#include "platform/jet/TableDefinition.h"

namespace jet {

// RuntimeError 13 when the column holds another kind of value, 6 when the number does not fit,
// kProviderFailure when a text or binary value is longer than the column. Errors name the column.
basic::Variant toColumnValue(const basic::Variant& value, const Column& column);

} // namespace jet
