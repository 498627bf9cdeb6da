// SPDX-FileCopyrightText: 2026 The qmClient authors
// SPDX-License-Identifier: GPL-3.0-or-later
#include "dialogs/CallFields.h"

#include "data/CallLog.h"
#include "platform/basic/VariantText.h"
#include "platform/forms/UserLocale.h"
#include "resources/StringTable.h"

namespace dialogs {
namespace {

constexpr std::string_view kSeparator = " - ";

bool isBlank(std::string_view text) {
    return text.find_first_not_of(' ') == std::string_view::npos;
}

std::string onOneLine(std::string_view text) {
    std::string line;
    for (const char character : text) {
        if (character == '\n')
            line += kSeparator;
        else
            line.push_back(character);
    }
    return line;
}

} // namespace

std::string CallFields::date() const {
    const basic::Variant value = m_records.Field(data::kCallDate);
    if (const auto* date = std::get_if<basic::Date>(&value))
        return forms::longDateAndTime(*date, m_locale);
    return basic::isNull(value) ? std::string() : basic::toText(value, m_format);
}

std::string CallFields::callID() const {
    return text(data::kCallID);
}

std::string CallFields::caller() const {
    const std::string number = text(data::kCallerID);
    const std::string name = text(data::kCallerName);
    return isBlank(name) ? number : onOneLine(std::string(number).append(kSeparator).append(name));
}

bool CallFields::hasMessage() const {
    const std::string length = text(data::kMessageLength);
    return !length.empty() && length != "0";
}

std::string CallFields::message() const {
    return hasMessage() ? text(data::kMessageLength).append(" s")
                        : resources::LoadLocalString(3678, "No message recorded");
}

std::string CallFields::details() const {
    return text(data::kCallDetails);
}

std::string CallFields::text(std::string_view field) const {
    const basic::Variant value = m_records.Field(field);
    return basic::isNull(value) ? std::string() : basic::toText(value, m_format);
}

} // namespace dialogs
