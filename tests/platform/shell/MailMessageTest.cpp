// SPDX-FileCopyrightText: 2026 The qmClient authors
// SPDX-License-Identifier: GPL-3.0-or-later
#include "platform/shell/MailMessage.h"

#include "tests/platform/shell/MailReading.h"

#include <gtest/gtest.h>

#include <algorithm>

namespace shell {
namespace {

using testing::decodedHeader;
using testing::linesOf;
using testing::partsOf;
using testing::received;

// Monday, 14 March 2005, 17:05:09, two hours and a half east of Greenwich.
std::tm monday() {
    std::tm date{};
    date.tm_year = 105;
    date.tm_mon = 2;
    date.tm_mday = 14;
    date.tm_wday = 1;
    date.tm_hour = 17;
    date.tm_min = 5;
    date.tm_sec = 9;
    date.tm_gmtoff = 9000;
    return date;
}

std::string messageOf(const MailText& mail, const MailSender& sender = {"Anna Berg", "anna@pc7"}) {
    return mailMessage(mail, sender, monday());
}

constexpr char kTo[] = "support@corvantis.example";

TEST(MailMessage, HasTheHeadersOfAProperMessage) {
    const auto mail = received(messageOf({kTo, "Report", "text\r\n"}));
    EXPECT_EQ(mail.names(), "Date From To Subject MIME-Version Content-Type Content-Transfer-Encoding ");
    EXPECT_EQ(mail.header("Date"), "Mon, 14 Mar 2005 17:05:09 +0230");
    EXPECT_EQ(mail.header("From"), "Anna Berg <anna@pc7>");
    EXPECT_EQ(mail.header("To"), kTo);
    EXPECT_EQ(mail.header("Subject"), "Report");
    EXPECT_EQ(mail.header("Content-Type"), "text/plain; charset=utf-8");
    EXPECT_EQ(mail.body, "text\r\n");
}

TEST(MailMessage, AnOffsetWestOfGreenwichHasItsSign) {
    std::tm date = monday();
    date.tm_gmtoff = -18000;
    const auto mail = received(mailMessage({kTo, "Report", ""}, {}, date));
    EXPECT_EQ(mail.header("Date"), "Mon, 14 Mar 2005 17:05:09 -0500");
}

TEST(MailMessage, WithoutASenderTheTransferProgramSaysWhoItIs) {
    EXPECT_EQ(received(messageOf({kTo, "Report", ""}, {})).header("From"), "(none)");
}

TEST(MailMessage, ASubjectWithUmlautsArrivesInLinesThatEveryProgramTakes) {
    std::string subject;
    for (int i = 0; i < 20; ++i)
        subject += "Fehler in Übergröße €";
    const std::string message = messageOf({kTo, subject, ""});
    EXPECT_EQ(decodedHeader(received(message).header("Subject")), subject);
    for (const std::string& line : linesOf(message)) {
        EXPECT_LE(line.size(), 76U) << line;
        EXPECT_TRUE(std::all_of(line.begin(), line.end(), [](char c) { return c >= ' ' && c <= '~'; }))
            << line;
    }
}

TEST(MailMessage, NoLineBreakInASubjectOrNameMakesAHeader) {
    const std::string hostile = "x\r\nBcc: everybody@example.org\r\n\r\nother text\nX: y";
    const auto mail = received(messageOf({std::string(kTo) + "\nBcc: z@example.org", hostile, "text"},
                                         {hostile, "anna@pc7\r\nBcc: q@example.org"}));
    EXPECT_EQ(mail.names(), "Date From To Subject MIME-Version Content-Type Content-Transfer-Encoding ");
    EXPECT_EQ(mail.body, "text");
    EXPECT_EQ(decodedHeader(mail.header("Subject")), "x  Bcc: everybody@example.org    other text X: y");
}

TEST(MailMessage, ASubjectThatLooksEncodedArrivesAsItIs) {
    const std::string subject = "=?UTF-8?B?QUFB?= 100%";
    EXPECT_EQ(decodedHeader(received(messageOf({kTo, subject, ""})).header("Subject")), subject);
}

TEST(MailMessage, ANameThatWouldNeedQuotesArrives) {
    for (const std::string name : {"Jürgen Größe", "Berg, Anna \"AB\" <x@y>", "a\\b"}) {
        const std::string from = received(messageOf({kTo, "r", ""}, {name, "a@b"})).header("From");
        EXPECT_EQ(decodedHeader(from.substr(0, from.find(" <a@b>"))), name);
        EXPECT_TRUE(from.ends_with(" <a@b>")) << from;
        EXPECT_EQ(from.substr(0, from.find(" <a@b>")).find_first_of("\",<>@\\"), std::string::npos) << from;
    }
}

TEST(MailMessage, ABodyArrivesByteForByte) {
    std::string body = ".\r\nFrom here\r\n..\r\n\tTab & \"quotes\" 100% Ä\\n\r\n";
    body.append(5000, 'x').append("\r\n");
    EXPECT_EQ(received(messageOf({kTo, "r", body})).body, body);
}

TEST(MailMessage, LineEndsOfABodyBecomeThoseOfMail) {
    EXPECT_EQ(withMailLineEnds("a\nb\rc\r\n4\r\r\n"), "a\r\nb\r\nc\r\n4\r\n\r\n");
    EXPECT_EQ(withMailLineEnds(std::string("a\0b", 3)), "ab");
}

TEST(MailtoUri, KeepsSubjectAndBodyWhole) {
    const MailText mail{kTo, "Größe & 100% \"x\" = 'y', #1?", "Zeile 1\r\n\\\\srv01\\new & \"Ä\" %41\r\n"};
    const std::string uri = mailtoUri(mail);
    auto parts = partsOf(uri);
    EXPECT_TRUE(uri.starts_with("mailto:support@corvantis.example?")) << uri;
    EXPECT_EQ(parts["subject"], mail.subject);
    EXPECT_EQ(parts["body"], mail.body);
    EXPECT_EQ(
        uri.find_first_not_of("abcdefghijklmnopqrstuvwxyzABCDEFGHIJKLMNOPQRSTUVWXYZ0123456789-._~%@:?&="),
        std::string::npos)
        << "nothing that a shell or a second decoding would see";
}

TEST(MailtoUri, AnAddressBringsNoFieldsOfItsOwn) {
    auto parts = partsOf(mailtoUri({"a@b?cc=c@d&bcc=e@f", "s", "t"}));
    EXPECT_EQ(parts.size(), 3U);
    EXPECT_EQ(parts["subject"], "s");
}

TEST(LocalAddress, HasOnlyWhatAnAddressMayHave) {
    EXPECT_EQ(localAddress("anna", "pc7.example"), "anna@pc7.example");
    EXPECT_EQ(localAddress("CORP\\an na", "pc 7"), "CORP_an_na@pc_7");
    EXPECT_EQ(localAddress("", "pc7"), "");
    EXPECT_EQ(localAddress("anna", ""), "");
}

} // namespace
} // namespace shell
