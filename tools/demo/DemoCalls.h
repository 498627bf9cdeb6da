// SPDX-FileCopyrightText: 2026 The qmClient authors
// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once
// Invents calls such as a voice-mail server logs: callers with English and German names, some unknown, most
// with a message, notes short and long. The same seed gives the same calls.

#include "platform/basic/Variant.h"

#include <cstdint>
#include <optional>
#include <random>
#include <string>

namespace demo {

struct Call {
    std::string callId; // letters and digits: it names the sound file
    basic::Date date;
    std::optional<std::string> callerId;
    std::optional<std::string> callerName;
    std::int32_t messageLength = 0; // seconds, 0 without a message
    std::optional<std::string> details;
};

class DemoCalls {
public:
    explicit DemoCalls(std::uint32_t seed) : m_random(seed) {}

    // A call at that time. `distinction` is put into the call's ID beside the time and must be another one
    // for each call of the same second.
    Call make(const basic::Date& when, std::uint32_t distinction);
    // A time some minutes to some hours before `later`, to the second.
    basic::Date earlier(const basic::Date& later);

private:
    std::uint32_t below(std::uint32_t limit);
    std::optional<std::string> details(const Call& call);

    std::mt19937 m_random;
};

} // namespace demo
