// SPDX-FileCopyrightText: 2026 The qmClient authors
// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once
// The text between the # signs of a date: month/day/year, as the provider reads it in every country, or
// year-month-day, then an optional time with seconds and AM or PM; a time alone lies on day 0.

#include "platform/basic/Variant.h"

#include <optional>
#include <string_view>

namespace jet::sql {

// Nothing for a text that is no date or names one that does not exist.
std::optional<basic::Date> parseDateLiteral(std::string_view text);

} // namespace jet::sql
