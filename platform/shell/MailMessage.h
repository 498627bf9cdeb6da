// SPDX-FileCopyrightText: 2026 The qmClient authors
// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once
// A mail as text, in the two forms that mail programs take: a message of RFC 5322 with headers of RFC 2047,
// and a mailto URI of RFC 6068. Everything is UTF-8. Whatever is in a subject or a name, it stays in its
// header: line breaks and other control characters become blanks. Pure functions.

#include <ctime>
#include <string>
#include <string_view>

namespace shell {

struct MailSender {
    std::string name;    // may be empty
    std::string address; // empty leaves the header to the mail transfer program
};

struct MailText {
    std::string to;
    std::string subject;
    std::string body;
};

// Lines end in LF, as mail transfer programs take them on their standard input; the body goes as Base64 with
// its lines ending in CR LF. `date` is local time with its offset.
std::string mailMessage(const MailText& mail, const MailSender& sender, const std::tm& date);

// Every byte but letters, digits and -._~ is percent-encoded, so that no shell and no second decoding on the
// way sees anything special.
std::string mailtoUri(const MailText& mail);

// A body's lines as mail has them, and no NUL.
std::string withMailLineEnds(std::string_view text);

// The address of a user of this machine; characters that no address has become underscores.
std::string localAddress(std::string_view user, std::string_view host);

} // namespace shell
