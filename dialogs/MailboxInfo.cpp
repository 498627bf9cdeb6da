// SPDX-FileCopyrightText: 2026 The qmClient authors
// SPDX-License-Identifier: GPL-3.0-or-later
#include "dialogs/MailboxInfo.h"

#include "data/CallLog.h"
#include "platform/basic/VariantText.h"

namespace dialogs {
namespace {

std::string textOf(const basic::Variant& field) {
    return basic::isNull(field) ? std::string() : basic::toText(field, {});
}

} // namespace

std::optional<MailboxInfo> readMailboxInfo(jet::Connection& connection) {
    const auto records = connection.Execute(data::kMailboxInfo);
    if (records->eof())
        return std::nullopt;
    return MailboxInfo{textOf(records->Field(data::kMailboxName)),
                       textOf(records->Field(data::kMailboxDescription))};
}

} // namespace dialogs
