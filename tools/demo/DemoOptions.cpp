// SPDX-FileCopyrightText: 2026 The qmClient authors
// SPDX-License-Identifier: GPL-3.0-or-later
#include "tools/demo/DemoOptions.h"

#include <charconv>

namespace demo {
namespace {

constexpr double kLongestInterval = 86400;

template <typename Number>
Number parseNumber(const std::string& option, const std::string& text, Number low, Number high) {
    Number value{};
    const char* end = text.data() + text.size();
    const auto [stop, error] = std::from_chars(text.data(), end, value);
    if (error != std::errc{} || stop != end || !(value >= low && value <= high))
        throw UsageError(option + " takes a number, not \"" + text + "\"");
    return value;
}

} // namespace

DemoOptions DemoOptions::parse(std::span<const std::string> arguments) {
    DemoOptions options;
    const auto valueOf = [&](std::size_t& at) -> const std::string& {
        if (at + 1 >= arguments.size())
            throw UsageError(arguments[at] + " needs a value");
        return arguments[++at];
    };
    for (std::size_t at = 0; at < arguments.size(); ++at) {
        const std::string& argument = arguments[at];
        if (argument == "--help")
            options.help = true;
        else if (argument == "--every")
            options.every = std::chrono::milliseconds(static_cast<std::int64_t>(
                1000 * parseNumber<double>(argument, valueOf(at), 0, kLongestInterval)));
        else if (argument == "--calls")
            options.calls = parseNumber<unsigned>(argument, valueOf(at), 1, 1000000);
        else if (argument == "--mailbox")
            options.mailbox = parseNumber<int>(argument, valueOf(at), 1, 2147483647);
        else if (argument == "--once")
            options.calls = 1;
        else if (argument.starts_with("-") || !options.folder.empty())
            throw UsageError("\"" + argument + "\" is not understood");
        else
            options.folder = argument;
    }
    if (options.folder.empty() && !options.help)
        throw UsageError("a folder is missing");
    return options;
}

} // namespace demo
