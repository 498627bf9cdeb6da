// SPDX-FileCopyrightText: 2026 The qmClient authors
// SPDX-License-Identifier: GPL-3.0-or-later
#include "tools/demo/DemoCalls.h"

#include "platform/basic/Calendar.h"

#include <array>
#include <cmath>
#include <cstdio>

namespace demo {
namespace {

struct Caller {
    const char* name; // null: the server knows no name
    const char* number;
};

// Numbers of the ranges that the regulators keep free for films and plays.
constexpr std::array<Caller, 16> kCallers{{{"Jürgen Müller", "+493023125101"},
                                           {"Margaret Ashdown", "+442079460112"},
                                           {"Zoë Whitfield", "+441632960123"},
                                           {"Dr. Käthe Größmann", "+494066969104"},
                                           {nullptr, "+442079460199"},
                                           {"O'Connor & Sons", "+441154960145"},
                                           {"Bäckerei Süßkind", "+493023125177"},
                                           {"Thomas Weiß", "+496990009118"},
                                           {"Harriet Penrose-Lloyd", "+441914980166"},
                                           {"Änne Überschär", "+492214710011"},
                                           {nullptr, nullptr},
                                           {"Reception", "12"},
                                           {"Ian Galbraith", "+441414960171"},
                                           {"Praxis Dr. Öztürk", "+498999998123"},
                                           {"Émile Fournier", "+33199003456"},
                                           {"Sören Jørgensen", "+494066969188"}}};

constexpr std::array<const char*, 8> kNotes{
    {"Asks to be called back after four o'clock.", "Bitte um Rückruf wegen des Angebots.", "Wrong number.",
     "Möchte den Termin am Donnerstag verschieben.", "Invoice 4711 has arrived, thanks.",
     "Fragt nach dem Schlüssel für Büro 3.", "Will try again tomorrow.", "Grüße an alle."}};

constexpr const char* kTranscript =
    "The caller left a longer message. First greeting and name, then the reason: the delivery that was "
    "announced "
    "for the beginning of the week has not come, and the workshop waits for it. Zweitens geht es um die "
    "Rechnung "
    "vom letzten Monat, in der ein Posten doppelt steht; eine Gutschrift wäre recht. ";

std::string idFor(const basic::CalendarTime& time, std::uint32_t distinction) {
    std::array<char, 80> text{};
    std::snprintf(text.data(), text.size(), "C%04d%02d%02dT%02d%02d%02dN%u", time.year, time.month, time.day,
                  time.hour, time.minute, time.second, distinction);
    return text.data();
}

std::optional<std::string> optionalText(const char* text) {
    return text == nullptr ? std::nullopt : std::optional<std::string>(text);
}

} // namespace

std::uint32_t DemoCalls::below(std::uint32_t limit) {
    return static_cast<std::uint32_t>(m_random() % limit);
}

Call DemoCalls::make(const basic::Date& when, std::uint32_t distinction) {
    const basic::CalendarTime time = basic::toCalendar(when).value_or(basic::CalendarTime{});
    const Caller& caller = kCallers[below(kCallers.size())];
    Call call;
    call.date = basic::toDate(time);
    call.callId = idFor(time, distinction);
    call.callerId = optionalText(caller.number);
    call.callerName = optionalText(caller.name);
    call.messageLength = below(4) == 0 ? 0 : static_cast<std::int32_t>(3 + below(10));
    call.details = details(call);
    return call;
}

// None, a short one that lies in the row, or one that takes pages of its own.
std::optional<std::string> DemoCalls::details(const Call& call) {
    const std::uint32_t kind = below(6);
    if (kind == 0 || (call.messageLength == 0 && kind > 3))
        return std::nullopt;
    if (kind < 5)
        return kNotes[below(kNotes.size())];
    std::string text;
    for (std::uint32_t i = 0, count = 1 + below(20); i < count; ++i)
        text += kTranscript;
    return text;
}

basic::Date DemoCalls::earlier(const basic::Date& later) {
    constexpr double kSecond = 1.0 / 86400;
    return {later.days - kSecond * (60 + below(6 * 3600))};
}

} // namespace demo
