// SPDX-FileCopyrightText: 2026 The qmClient authors
// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once
// What the program takes from the user's locale, once at its start.

#include "platform/basic/DateTimeFormat.h"

#include <QLocale>

#include <string>

namespace forms {

// Short date with a four-digit year, long time without zone, decimal separator, and the names of the halves
// of the day.
basic::DateTimeFormat userDateTimeFormat(const QLocale& locale = QLocale::system());

// A date in full: the locale's long date, a blank, and its long time without zone.
std::string longDateAndTime(basic::Date date, const QLocale& locale = QLocale::system());

// The name of the language that the user wants programs in, such as "de-DE".
std::string userLanguageName(const QLocale& locale = QLocale::system());

} // namespace forms
