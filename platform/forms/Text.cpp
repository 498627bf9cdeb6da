// SPDX-FileCopyrightText: 2026 The qmClient authors
// SPDX-License-Identifier: GPL-3.0-or-later
#include "platform/forms/Text.h"

namespace forms {
namespace {

constexpr qsizetype kLongestShownLine = 1000;

bool breaksLine(QChar unit) {
    return unit == u'\t' || unit == u'\n' || unit == u'\r' || unit == u'\v' || unit == u'\f' ||
           unit == QChar::LineSeparator || unit == QChar::ParagraphSeparator;
}

} // namespace

QString toQString(std::string_view utf8) {
    return QString::fromUtf8(utf8.data(), static_cast<qsizetype>(utf8.size()));
}

std::string fromQString(const QString& text) {
    return text.toStdString();
}

QString withoutAccessKeys(std::string_view utf8) {
    return toQString(utf8).replace(QStringLiteral("&"), QStringLiteral("&&"));
}

QString asOneLine(std::string_view utf8) {
    QString line = toQString(utf8.substr(0, 4 * kLongestShownLine));
    line.truncate(kLongestShownLine);
    bool blank = false;
    qsizetype kept = 0;
    for (const QChar unit : std::as_const(line)) {
        const bool breaks = breaksLine(unit);
        if (!breaks || !blank)
            line[kept++] = breaks ? QChar(u' ') : unit;
        blank = breaks;
    }
    line.truncate(kept);
    return line;
}

} // namespace forms
