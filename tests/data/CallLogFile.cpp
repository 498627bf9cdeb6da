// SPDX-FileCopyrightText: 2026 The qmClient authors
// SPDX-License-Identifier: GPL-3.0-or-later
#include "tests/data/CallLogFile.h"

#include "platform/jet/DatabaseBuilder.h"
#include "platform/jet/TableWriter.h"
#include "platform/share/LocalFile.h"

#include <vector>

namespace tests {
namespace {

constexpr basic::Date kCreated{45000.0};

jet::ColumnSpec text(std::string name) {
    jet::ColumnSpec column{std::move(name), jet::ColumnType::Text};
    column.size = 50;
    column.compressed = true;
    return column;
}

jet::TableSpec callLog() {
    jet::ColumnSpec id{"ID", jet::ColumnType::Long};
    id.autonumber = true;
    jet::ColumnSpec details{"CallDetails", jet::ColumnType::Memo};
    details.compressed = true;
    return {"CallLog",
            {id,
             text("CallID"),
             {"CallDate", jet::ColumnType::Date},
             text("CallerID"),
             text("CallerName"),
             {"MessageLength", jet::ColumnType::Long},
             details},
            {{"PrimaryKey", {{"ID"}}, true}}};
}

jet::TableSpec mailboxInfo() {
    return {
        "MailboxInfo", {{"ID", jet::ColumnType::Long}, text("MailboxName"), text("MailboxDescription")}, {}};
}

basic::Variant orNull(const auto& value) {
    return value ? basic::Variant(*value) : basic::Variant(basic::Null{});
}

std::vector<basic::Variant> row(const Call& call) {
    return {basic::Null{},
            call.callID,
            call.date ? basic::Variant(basic::Date{*call.date}) : basic::Variant(basic::Null{}),
            orNull(call.callerID),
            orNull(call.callerName),
            orNull(call.messageLength),
            call.details.value_or(basic::Variant("details of " + call.callID))};
}

} // namespace

void CallLogFile::create() const {
    std::filesystem::create_directories(m_file.parent_path());
    std::filesystem::remove_all(m_file);
    const auto file = share::LocalFile::open(m_file.string(), share::OpenMode::Create);
    jet::createDatabase(*file, kCreated);
    jet::createTable(*file, callLog(), kCreated);
}

void CallLogFile::describeNothing() const {
    const auto file = share::LocalFile::open(m_file.string(), share::OpenMode::ReadWrite);
    jet::createTable(*file, mailboxInfo(), kCreated);
}

void CallLogFile::describe(const std::string& name, const std::optional<std::string>& description) const {
    describeNothing();
    const auto file = share::LocalFile::open(m_file.string(), share::OpenMode::ReadWrite);
    jet::TableWriter writer(*file, "MailboxInfo");
    writer.insert(std::vector<basic::Variant>{std::int32_t{1}, name, orNull(description)});
    writer.flush();
}

void CallLogFile::append(const Call& call) const {
    const auto file = share::LocalFile::open(m_file.string(), share::OpenMode::ReadWrite);
    jet::TableWriter writer(*file, "CallLog");
    writer.insert(row(call));
    writer.flush();
}

void CallLogFile::append(int count) {
    const auto file = share::LocalFile::open(m_file.string(), share::OpenMode::ReadWrite);
    jet::TableWriter writer(*file, "CallLog");
    for (int i = 0; i < count; ++i) {
        Call call;
        call.callID = "C" + std::to_string(++m_last);
        writer.insert(row(call));
    }
    writer.flush();
}

} // namespace tests
