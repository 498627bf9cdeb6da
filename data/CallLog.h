// SPDX-FileCopyrightText: 2026 The qmClient authors
// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once
// The mailbox databases as the client uses them: the statements exactly as they are sent, and the columns it
// reads by name. Everything else about these tables is the server's.

#include <string>
#include <string_view>

namespace data {

inline constexpr const char* kAllCalls =
    "SELECT *, MessageLength & 's' AS MessageLengthS FROM CallLog ORDER BY ID DESC";
inline constexpr const char* kCountCalls = "SELECT COUNT(*) FROM CallLog";
inline constexpr const char* kDeleteCalls = "DELETE FROM CallLog";
// The ID goes in as it stands; one with an apostrophe makes a statement that the provider refuses.
inline std::string oneCall(std::string_view callID) {
    return std::string("SELECT * FROM CallLog WHERE CallID='").append(callID).append("'");
}

inline constexpr const char* kMailboxInfo = "SELECT * FROM MailboxInfo WHERE ID=1";

inline constexpr const char* kCallID = "CallID";
inline constexpr const char* kCallDate = "CallDate";
inline constexpr const char* kCallerID = "CallerID";
inline constexpr const char* kCallerName = "CallerName";
inline constexpr const char* kMessageLength = "MessageLength";
inline constexpr const char* kMessageLengthS = "MessageLengthS";
inline constexpr const char* kCallDetails = "CallDetails";
inline constexpr const char* kMailboxName = "MailboxName";
inline constexpr const char* kMailboxDescription = "MailboxDescription";

} // namespace data
