// SPDX-FileCopyrightText: 2026 The qmClient authors
// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once
// Reads mails as a receiving program does: headers with their folded lines, encoded words, Base64, mailto
// URIs.

#include <map>
#include <string>
#include <string_view>
#include <utility>
#include <vector>

namespace shell::testing {

inline std::string fromBase64(std::string_view text) {
    constexpr std::string_view kDigits = "ABCDEFGHIJKLMNOPQRSTUVWXYZabcdefghijklmnopqrstuvwxyz0123456789+/";
    std::string bytes;
    unsigned bits = 0;
    int count = 0;
    for (const char c : text) {
        const std::size_t digit = kDigits.find(c);
        if (digit == std::string_view::npos)
            continue;
        bits = bits << 6U | static_cast<unsigned>(digit);
        count += 6;
        if (count < 8)
            continue;
        count -= 8;
        bytes += static_cast<char>(bits >> static_cast<unsigned>(count) & 0xFFU);
    }
    return bytes;
}

inline std::vector<std::string> linesOf(std::string_view text) {
    std::vector<std::string> lines;
    while (!text.empty()) {
        const std::size_t end = text.find('\n');
        lines.emplace_back(text.substr(0, end));
        text.remove_prefix(end == std::string_view::npos ? text.size() : end + 1);
    }
    return lines;
}

// The text of a header with encoded words; blanks between two of them do not count.
inline std::string decodedHeader(std::string_view text) {
    constexpr std::string_view kBegin = "=?UTF-8?B?";
    std::string result;
    while (!text.empty()) {
        const std::size_t begin = text.find(kBegin);
        const std::string_view before = text.substr(0, begin);
        if (before.find_first_not_of(' ') != std::string_view::npos)
            result.append(before);
        if (begin == std::string_view::npos)
            break;
        text.remove_prefix(begin + kBegin.size());
        const std::size_t end = text.find("?=");
        result.append(fromBase64(text.substr(0, end)));
        text.remove_prefix(end + 2);
    }
    return result;
}

struct ReceivedMail {
    std::vector<std::pair<std::string, std::string>> headers; // unfolded, not decoded
    std::string body;                                         // decoded

    std::string header(std::string_view name) const {
        for (const auto& [known, value] : headers)
            if (known == name)
                return value;
        return "(none)";
    }
    std::string names() const {
        std::string text;
        for (const auto& [name, value] : headers)
            text.append(name).append(" ");
        return text;
    }
};

inline ReceivedMail received(std::string_view message) {
    ReceivedMail mail;
    const std::size_t end = message.find("\n\n");
    for (const std::string& line : linesOf(message.substr(0, end))) {
        if (line.starts_with(' ')) {
            mail.headers.back().second.append(line);
            continue;
        }
        const std::size_t colon = line.find(": ");
        mail.headers.emplace_back(line.substr(0, colon), line.substr(colon + 2));
    }
    mail.body = fromBase64(message.substr(end + 2));
    return mail;
}

inline std::string percentDecoded(std::string_view text) {
    std::string result;
    for (std::size_t i = 0; i < text.size(); ++i) {
        if (text[i] != '%') {
            result += text[i];
            continue;
        }
        result += static_cast<char>(std::stoi(std::string(text.substr(i + 1, 2)), nullptr, 16));
        i += 2;
    }
    return result;
}

// "address", "subject" and "body" of a mailto URI.
inline std::map<std::string, std::string> partsOf(std::string_view uri) {
    std::map<std::string, std::string> parts;
    const std::size_t question = uri.find('?');
    parts["address"] = percentDecoded(uri.substr(7, question - 7));
    uri.remove_prefix(question + 1);
    while (!uri.empty()) {
        const std::string_view field = uri.substr(0, uri.find('&'));
        const std::size_t equals = field.find('=');
        parts[std::string(field.substr(0, equals))] = percentDecoded(field.substr(equals + 1));
        uri.remove_prefix(std::min(field.size() + 1, uri.size()));
    }
    return parts;
}

} // namespace shell::testing
