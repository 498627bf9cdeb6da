// SPDX-FileCopyrightText: 2026 The qmClient authors
// SPDX-License-Identifier: GPL-3.0-or-later
#include "tools/demo/CallLogTable.h"

namespace demo {
namespace {

using basic::Null;
using basic::Variant;
using jet::ColumnSpec;
using jet::ColumnType;

ColumnSpec text(const char* name, std::uint16_t size) {
    return {.name = name, .type = ColumnType::Text, .size = size, .compressed = true};
}

Variant optional(const std::optional<std::string>& value) {
    return value ? Variant(*value) : Variant(Null{});
}

} // namespace

jet::TableSpec callLogTable() {
    return {.name = "CallLog",
            .columns = {{.name = "ID", .type = ColumnType::Long, .autonumber = true},
                        text("CallID", 50),
                        {.name = "CallDate", .type = ColumnType::Date},
                        text("CallerID", 64),
                        text("CallerName", 255),
                        {.name = "MessageLength", .type = ColumnType::Long},
                        {.name = "CallDetails", .type = ColumnType::Memo, .compressed = true}},
            .indexes = {{.name = "PrimaryKey", .columns = {{"ID"}}, .primaryKey = true},
                        {.name = "CallID", .columns = {{"CallID"}}, .unique = true}}};
}

jet::TableSpec mailboxInfoTable() {
    return {.name = "MailboxInfo",
            .columns = {{.name = "ID", .type = ColumnType::Long},
                        text("MailboxName", 100),
                        text("MailboxDescription", 255)},
            .indexes = {{.name = "PrimaryKey", .columns = {{"ID"}}, .primaryKey = true}}};
}

std::vector<Variant> callLogRow(const Call& call) {
    return {Null{},
            call.callId,
            call.date,
            optional(call.callerId),
            optional(call.callerName),
            call.messageLength,
            optional(call.details)};
}

} // namespace demo
