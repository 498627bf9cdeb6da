// SPDX-FileCopyrightText: 2026 The qmClient authors
// SPDX-License-Identifier: GPL-3.0-or-later
#include "errors/ReportText.h"

#include "errors/ErrorRecord.h"
#include "platform/forms/Text.h"

namespace errors {

QString reportText(const ReportFields& fields, const basic::CalendarTime& at) {
    const QString end = QStringLiteral("\r\n");
    QString text = QStringLiteral("Error occured at: ") + forms::toQString(timeText(at)) + end + end;
    text += QStringLiteral("Component: \t") + fields.component + end;
    text += QStringLiteral("Version:   \t") + fields.version + end;
    text += QStringLiteral("Modul:     \t") + fields.module + end;
    text += QStringLiteral("OS-VErsion:\t") + fields.operatingSystem + end + end;
    text += QStringLiteral("Error:     \t") + fields.error + end;
    text += QStringLiteral("Comments:  ") + end + end;
    return text;
}

} // namespace errors
