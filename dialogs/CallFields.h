// SPDX-FileCopyrightText: 2026 The qmClient authors
// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once
// The fields of one row of the call log as the details dialog shows them. A field that is Null is an empty
// text; an unknown one raises 3265. What it is given must outlive it.

#include "platform/basic/DateTimeFormat.h"
#include "platform/jet/Recordset.h"

#include <QLocale>

#include <cstdint>
#include <string>
#include <string_view>

namespace dialogs {

class CallFields {
public:
    // The record set stands on the row.
    CallFields(const jet::Recordset& records, const basic::DateTimeFormat& format, const QLocale& locale)
        : m_records(records), m_format(format), m_locale(locale) {}

    // Long date and long time of the locale.
    std::string date() const;
    std::string callID() const;
    // Number and name on one line, the number alone for a caller without a name.
    std::string caller() const;
    bool hasMessage() const;
    // The length in seconds, or that there is no message.
    std::string message() const;
    std::string details() const;

private:
    std::string text(std::string_view field) const;

    const jet::Recordset& m_records;
    const basic::DateTimeFormat& m_format;
    const QLocale& m_locale;
};

} // namespace dialogs
