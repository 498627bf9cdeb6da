// SPDX-FileCopyrightText: 2026 The qmClient authors
// SPDX-License-Identifier: GPL-3.0-or-later
#include "dialogs/OptionsList.h"

#include "platform/basic/Conversion.h"
#include "platform/basic/Twips.h"
#include "resources/StringTable.h"

#include <memory>
#include <string>
#include <utility>

namespace dialogs {
namespace {

constexpr basic::Twips kNumberWidth{1000};
constexpr basic::Twips kNameWidth{2200};
constexpr basic::Twips kDescriptionWidth{3400};

std::string itemKey(std::int32_t number) {
    return std::to_string(number) + "K";
}

} // namespace

void OptionsList::begin(errors::Procedure& proc) {
    auto& columns = m_list.ColumnHeaders();
    proc.step([&] { m_list.ListItems().Clear(); });
    proc.step([&] { columns.Clear(); });
    const auto add = [&](const std::string& header, basic::Twips width, const char* key) {
        proc.step([&] { columns.Add(header, width, forms::kColumnLeft, key); });
    };
    add(resources::LoadLocalString(3767, "ID"), kNumberWidth, "MailboxID");
    add(resources::LoadLocalString(3768, "Name"), kNameWidth, "Name");
    add(resources::LoadLocalString(3769, "Description"), kDescriptionWidth, "Description");
}

void OptionsList::add(errors::Procedure& proc, const data::clsConfig& config, const FoundMailbox& mailbox) {
    const std::optional<MailboxInfo> info = infoOf(proc, config, mailbox);
    if (!info)
        return;
    std::optional<forms::ListItem> item;
    proc.step(
        [&] { item = m_list.ListItems().Add(itemKey(mailbox.number), std::to_string(mailbox.number)); });
    if (!item)
        return;
    proc.step([&] { item->SetSubItems(1, info->name); });
    proc.step([&] { item->SetSubItems(2, info->description); });
}

// What was read ahead counts once: "try again" asks the mailbox again.
std::optional<MailboxInfo> OptionsList::infoOf(errors::Procedure& proc, const data::clsConfig& config,
                                               const FoundMailbox& mailbox) const {
    bool isTold = false;
    std::optional<MailboxInfo> info;
    proc.step([&] {
        if (std::exchange(isTold, true)) {
            info = readAnew(config, mailbox.number);
            return;
        }
        if (mailbox.failure)
            throw basic::RuntimeError(*mailbox.failure);
        info = mailbox.info;
    });
    return info;
}

std::optional<MailboxInfo> OptionsList::readAnew(const data::clsConfig& config, std::int32_t number) const {
    const auto connection = m_common.GetMBXCon(number, config);
    return connection ? readMailboxInfo(*connection) : std::nullopt;
}

// What stands for an empty store is no mailbox.
void OptionsList::check(errors::Procedure& proc, const data::clsConfig& config) {
    if (!config.watchesMailboxes())
        return;
    const data::MailboxCollection mailboxes = config.Mailboxes; // a report lets events run
    for (const auto& mailbox : mailboxes) {
        if (!proc.running())
            return;
        proc.step([&] { m_list.ListItems().Item(itemKey(mailbox->ID)).SetChecked(true); });
    }
}

void OptionsList::take(errors::Procedure& proc, data::clsConfig& config) {
    auto& items = m_list.ListItems();
    for (int index = 1; index <= items.Count() && proc.running(); ++index) {
        const forms::ListItem item = items.Item(index);
        if (!item.Checked())
            continue;
        proc.step([&] {
            const auto mailbox = std::make_shared<data::clsMailbox>(m_errors);
            mailbox->ID = basic::CLng(item.Text());
            mailbox->Name = item.SubItems(1);
            mailbox->Description = item.SubItems(2);
            mailbox->MailboxType = "M";
            config.Mailboxes.Add(mailbox, std::to_string(mailbox->ID) + "KEY");
        });
    }
}

} // namespace dialogs
