// SPDX-FileCopyrightText: 2026 The qmClient authors
// SPDX-License-Identifier: GPL-3.0-or-later
#include "platform/forms/UserLocale.h"

#include "platform/forms/Text.h"

#include <QDate>
#include <QRegularExpression>
#include <QStringList>
#include <QTime>

#include <optional>

namespace forms {
namespace {

// A year of two digits says nothing about a log that is kept for years.
QString withFourDigitYear(const QString& pattern) {
    static const QRegularExpression twoDigits(QStringLiteral("(?<!y)yy(?!y)"));
    return QString(pattern).replace(twoDigits, QStringLiteral("yyyy"));
}

// The times of a log are the server's wall-clock times, so a zone would be ours and wrong.
QString withoutZone(const QString& pattern) {
    static const QRegularExpression zone(QStringLiteral("\\s*t+"));
    return QString(pattern).remove(zone).trimmed();
}

} // namespace

basic::DateTimeFormat userDateTimeFormat(const QLocale& locale) {
    basic::DateTimeFormat format;
    format.shortDate = fromQString(withFourDigitYear(locale.dateFormat(QLocale::ShortFormat)));
    format.longTime = fromQString(withoutZone(locale.timeFormat(QLocale::LongFormat)));
    format.decimalSeparator = fromQString(locale.decimalPoint());
    format.amText = fromQString(locale.amText());
    format.pmText = fromQString(locale.pmText());
    return format;
}

std::string longDateAndTime(basic::Date date, const QLocale& locale) {
    const std::optional<basic::CalendarTime> time = basic::toCalendar(date);
    if (!time)
        return basic::DateTimeFormat().invalidDate;
    const QDate day(time->year, time->month, time->day);
    const QTime clock(time->hour, time->minute, time->second);
    const QString timeFormat = withoutZone(locale.timeFormat(QLocale::LongFormat));
    return fromQString(locale.toString(day, QLocale::LongFormat) + u' ' + locale.toString(clock, timeFormat));
}

std::string userLanguageName(const QLocale& locale) {
    const QStringList languages = locale.uiLanguages();
    return fromQString(languages.isEmpty() ? locale.name() : languages.front());
}

} // namespace forms
