// SPDX-FileCopyrightText: 2026 The qmClient authors
// SPDX-License-Identifier: GPL-3.0-or-later
#include "platform/shell/MailMessage.h"

#include <algorithm>
#include <array>
#include <cstdio>

namespace shell {
namespace {

constexpr std::size_t kBase64Line = 57;  // bytes for 76 characters
constexpr std::size_t kEncodedWord = 39; // bytes for a word that fits beside the longest header name
constexpr std::size_t kPlainHeader = 60;

bool isPrintable(char c) {
    return c >= ' ' && c <= '~';
}

bool isLetterOrDigit(char c) {
    return (c >= 'a' && c <= 'z') || (c >= 'A' && c <= 'Z') || (c >= '0' && c <= '9');
}

unsigned byteAt(std::string_view bytes, std::size_t index) {
    return index < bytes.size() ? static_cast<unsigned char>(bytes[index]) : 0U;
}

std::string base64(std::string_view bytes) {
    constexpr std::string_view kDigits = "ABCDEFGHIJKLMNOPQRSTUVWXYZabcdefghijklmnopqrstuvwxyz0123456789+/";
    std::string text;
    for (std::size_t i = 0; i < bytes.size(); i += 3) {
        const unsigned group = byteAt(bytes, i) << 16U | byteAt(bytes, i + 1) << 8U | byteAt(bytes, i + 2);
        for (std::size_t digit = 0; digit < 4; ++digit)
            text += i + digit > bytes.size() ? '=' : kDigits[group >> (18U - 6U * digit) & 63U];
    }
    return text;
}

std::string inLines(std::string_view bytes) {
    std::string text;
    for (; !bytes.empty(); bytes.remove_prefix(std::min(kBase64Line, bytes.size())))
        text.append(base64(bytes.substr(0, kBase64Line))).push_back('\n');
    return text;
}

// At most `most` bytes, no character cut in two.
std::size_t wholeCharacters(std::string_view text, std::size_t most) {
    if (text.size() <= most)
        return text.size();
    std::size_t end = most;
    while (end > 0 && (static_cast<unsigned char>(text[end]) & 0xC0U) == 0x80U)
        --end;
    return end == 0 ? most : end;
}

std::string encodedWords(std::string_view text) {
    std::string words;
    while (!text.empty()) {
        const std::size_t length = wholeCharacters(text, kEncodedWord);
        words.append(words.empty() ? "=?UTF-8?B?" : "\n =?UTF-8?B?");
        words.append(base64(text.substr(0, length))).append("?=");
        text.remove_prefix(length);
    }
    return words;
}

std::string withoutControls(std::string_view text) {
    std::string result(text);
    std::replace_if(
        result.begin(), result.end(), [](unsigned char c) { return c < ' ' || c == 0x7F; }, ' ');
    return result;
}

std::string headerText(std::string_view text) {
    const std::string clean = withoutControls(text);
    const bool isPlain = clean.size() <= kPlainHeader &&
                         std::all_of(clean.begin(), clean.end(), isPrintable) &&
                         clean.find("=?") == std::string::npos && !clean.starts_with(' ');
    return isPlain ? clean : encodedWords(clean);
}

// A person's name before an address: always in a form that needs no quoting.
std::string phrase(std::string_view name) {
    const std::string clean = withoutControls(name);
    const bool isPlain = std::all_of(clean.begin(), clean.end(),
                                     [](char c) { return isLetterOrDigit(c) || c == ' ' || c == '-'; });
    return isPlain && clean.size() <= kPlainHeader ? clean : encodedWords(clean);
}

// The names are the format's own, whatever language the user has.
std::string dateText(const std::tm& date) {
    constexpr std::array<const char*, 7> kDays{"Sun", "Mon", "Tue", "Wed", "Thu", "Fri", "Sat"};
    constexpr std::array<const char*, 12> kMonths{"Jan", "Feb", "Mar", "Apr", "May", "Jun",
                                                  "Jul", "Aug", "Sep", "Oct", "Nov", "Dec"};
    const long offset = std::abs(date.tm_gmtoff) / 60;
    std::array<char, 64> text{};
    std::snprintf(text.data(), text.size(), "%s, %02d %s %04d %02d:%02d:%02d %c%02ld%02ld",
                  kDays.at(static_cast<std::size_t>(date.tm_wday)), date.tm_mday,
                  kMonths.at(static_cast<std::size_t>(date.tm_mon)), date.tm_year + 1900, date.tm_hour,
                  date.tm_min, date.tm_sec, date.tm_gmtoff < 0 ? '-' : '+', offset / 60, offset % 60);
    return text.data();
}

std::string percentEncoded(std::string_view text) {
    constexpr std::string_view kHex = "0123456789ABCDEF";
    constexpr std::string_view kUnreserved = "-._~";
    std::string result;
    for (const char c : text) {
        if (isLetterOrDigit(c) || kUnreserved.find(c) != std::string_view::npos) {
            result += c;
            continue;
        }
        const auto byte = static_cast<unsigned char>(c);
        result.append(1, '%').append(1, kHex[byte >> 4U]).append(1, kHex[byte & 15U]);
    }
    return result;
}

std::string addressText(std::string_view address) {
    std::string text = withoutControls(address);
    std::erase(text, ' ');
    return text;
}

} // namespace

std::string withMailLineEnds(std::string_view text) {
    std::string result;
    for (std::size_t i = 0; i < text.size(); ++i) {
        const bool isPair = text[i] == '\r' && i + 1 < text.size() && text[i + 1] == '\n';
        if (isPair || text[i] == '\0')
            continue;
        if (text[i] == '\r' || text[i] == '\n')
            result.append("\r\n");
        else
            result.push_back(text[i]);
    }
    return result;
}

std::string mailMessage(const MailText& mail, const MailSender& sender, const std::tm& date) {
    std::string text;
    text.append("Date: ").append(dateText(date)).append("\n");
    if (!sender.address.empty()) {
        text.append("From: ").append(phrase(sender.name));
        text.append(sender.name.empty() ? "<" : " <").append(addressText(sender.address)).append(">\n");
    }
    text.append("To: ").append(addressText(mail.to)).append("\n");
    text.append("Subject: ").append(headerText(mail.subject)).append("\n");
    text.append("MIME-Version: 1.0\n");
    text.append("Content-Type: text/plain; charset=utf-8\n");
    text.append("Content-Transfer-Encoding: base64\n\n");
    return text.append(inLines(withMailLineEnds(mail.body)));
}

std::string mailtoUri(const MailText& mail) {
    std::string uri = "mailto:";
    const std::string to = addressText(mail.to);
    const std::size_t at = to.find('@');
    uri.append(percentEncoded(to.substr(0, at)));
    if (at != std::string::npos)
        uri.append("@").append(percentEncoded(to.substr(at + 1)));
    uri.append("?subject=").append(percentEncoded(withoutControls(mail.subject)));
    return uri.append("&body=").append(percentEncoded(withMailLineEnds(mail.body)));
}

std::string localAddress(std::string_view user, std::string_view host) {
    const auto clean = [](std::string_view text, std::string_view further) {
        std::string result(text);
        std::replace_if(
            result.begin(), result.end(),
            [&](char c) { return !isLetterOrDigit(c) && further.find(c) == std::string_view::npos; }, '_');
        return result;
    };
    if (user.empty() || host.empty())
        return {};
    return clean(user, "._-+").append("@").append(clean(host, ".-"));
}

} // namespace shell
