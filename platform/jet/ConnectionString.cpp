// SPDX-FileCopyrightText: 2026 The qmClient authors
// SPDX-License-Identifier: GPL-3.0-or-later
#include "platform/jet/ConnectionString.h"

#include "platform/basic/RuntimeError.h"
#include "platform/basic/TextCompare.h"

namespace jet {
namespace {

constexpr std::string_view kProvider = "Microsoft.Jet.OLEDB.4.0";
constexpr std::size_t kMaximumLength = 8192;

[[noreturn]] void refuse(std::string_view problem) {
    throw basic::RuntimeError(basic::kProviderFailure, "connection string: " + std::string(problem));
}

std::string_view trimmed(std::string_view text) {
    const std::size_t first = text.find_first_not_of(" \t");
    if (first == std::string_view::npos)
        return {};
    return text.substr(first, text.find_last_not_of(" \t") - first + 1);
}

// Takes the value off the front of `rest`, with the semicolon after it.
std::string takeValue(std::string_view& rest) {
    rest.remove_prefix(std::min(rest.find_first_not_of(" \t"), rest.size()));
    const bool isQuoted = rest.starts_with('"') || rest.starts_with('\'');
    std::string value;
    if (isQuoted) {
        const std::size_t end = rest.find(rest.front(), 1);
        if (end == std::string_view::npos)
            refuse("a quote is not closed");
        value = rest.substr(1, end - 1);
        rest.remove_prefix(end + 1);
    }
    const std::size_t end = std::min(rest.find(';'), rest.size());
    const std::string_view plain = trimmed(rest.substr(0, end));
    if (isQuoted && !plain.empty())
        refuse("text after a closing quote");
    rest.remove_prefix(std::min(end + 1, rest.size()));
    return isQuoted ? value : std::string(plain);
}

} // namespace

ConnectionString ConnectionString::parse(std::string_view text) {
    if (text.size() > kMaximumLength)
        refuse("too long");
    ConnectionString result;
    for (std::string_view rest = text; !trimmed(rest).empty();) {
        const std::size_t equals = rest.find('=');
        const std::string_view key = trimmed(rest.substr(0, equals));
        if (equals == std::string_view::npos || key.empty() || key.find(';') != std::string_view::npos)
            refuse("a key and a value are expected at: " + std::string(rest));
        rest.remove_prefix(equals + 1);
        result.take(key, takeValue(rest));
    }
    if (!basic::equalText(result.m_provider, kProvider))
        throw basic::RuntimeError(basic::kProviderNotFound,
                                  "Provider cannot be found: \"" + result.m_provider + "\"");
    if (result.m_dataSource.empty())
        refuse("no data source");
    return result;
}

void ConnectionString::take(std::string_view key, const std::string& value) {
    if (basic::equalText(key, "Provider"))
        m_provider = value;
    else if (basic::equalText(key, "Data Source"))
        m_dataSource = value;
    else if (!basic::equalText(key, "Jet OLEDB:Database Locking Mode"))
        refuse("unknown key " + std::string(key));
    else if (value != "0" && value != "1")
        refuse("unknown locking mode " + value);
}

} // namespace jet
