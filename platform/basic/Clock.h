// SPDX-FileCopyrightText: 2026 The qmClient authors
// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once
// Local wall-clock time, handed in wherever the time matters so that tests set it. Any thread.

#include "platform/basic/Calendar.h"

namespace basic {

class Clock {
public:
    Clock() = default;
    Clock(const Clock&) = delete;
    Clock& operator=(const Clock&) = delete;
    virtual ~Clock() = default;

    virtual CalendarTime now() const = 0;
    Date nowAsDate() const { return toDate(now()); }
};

} // namespace basic
