// SPDX-FileCopyrightText: 2026 The qmClient authors
// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once
// The machine's clock in the user's time zone.

#include "platform/basic/Clock.h"

namespace basic {

class SystemClock final : public Clock {
public:
    CalendarTime now() const override;
};

} // namespace basic
