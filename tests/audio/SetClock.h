// SPDX-FileCopyrightText: 2026 The qmClient authors
// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once
// A clock that shows what the test sets.

#include "platform/basic/Clock.h"

namespace audio {

class SetClock final : public basic::Clock {
public:
    basic::CalendarTime now() const override { return time; }

    basic::CalendarTime time{2026, 11, 21, 9, 0, 0};
};

} // namespace audio
