// SPDX-FileCopyrightText: 2026 The qmClient authors
// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once
// The error report as it is mailed: labels of 11 characters and a tab, lines ending in CR LF. Whoever reads
// the reports sorts them by these labels, so spellings and blanks stay as they are.

#include "errors/ReportSender.h"
#include "platform/basic/Calendar.h"

#include <QString>

namespace errors {

QString reportText(const ReportFields& fields, const basic::CalendarTime& at);

} // namespace errors
