// SPDX-FileCopyrightText: 2026 The qmClient authors
// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once
// The platform's default conversion of a value to text, as a list column or a message shows it.

#include "platform/basic/DateTimeFormat.h"
#include "platform/basic/Variant.h"

#include <string>

namespace basic {

// Integers in decimal, Boolean "True" or "False", floating-point numbers with at most 7 or 15 significant
// digits and an exponent only where more decimal places would be needed, fixed-point numbers without trailing
// zeros, identifiers in braces, binary as hexadecimal digits; dates as toText(Date). Null is error 94.
std::string toText(const Variant& value, const DateTimeFormat& format);

} // namespace basic
