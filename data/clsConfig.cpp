// SPDX-FileCopyrightText: 2026 The qmClient authors
// SPDX-License-Identifier: GPL-3.0-or-later
#include "data/clsConfig.h"

#include "data/MailboxKey.h"
#include "errors/Procedure.h"
#include "platform/basic/Conversion.h"
#include "platform/registry/Batch.h"

#include <optional>

namespace data {
namespace {

using registry::Root;

std::string clientKey() {
    return std::string(kSettingsKey) + "\\Client";
}
std::string mailboxesKey() {
    return clientKey() + "\\Mailboxes";
}
std::string mailboxSubkey(std::string_view subkey) {
    return mailboxesKey() + "\\" + std::string(subkey);
}

} // namespace

clsConfig::clsConfig(registry::Registry& registry, forms::MessageBoxes& boxes, errors::ErrorHandler& errors)
    : m_registry(registry), m_values(registry, boxes), m_errors(errors) {
    Class_Initialize();
}

void clsConfig::Class_Initialize() {
    errors::Procedure proc{m_errors, "clsConfig", "Class_Initialize"};
    proc.step([&] { PollInterval = kDefaultPollInterval; });
}

// An empty store gives one mailbox whose key has no ID behind the prefix.
bool clsConfig::watchesMailboxes() const {
    return Mailboxes.Count() > 1 || (Mailboxes.Count() == 1 && Mailboxes.keyAt(1) != kMailboxKeyPrefix);
}

bool clsConfig::Clear() {
    errors::Procedure proc{m_errors, "clsConfig", "Clear"};
    proc.step([&] { Mailboxes = MailboxCollection(); });
    return proc.finish();
}

bool clsConfig::LoadConfig() {
    errors::Procedure proc{m_errors, "clsConfig", "LoadConfig"};
    proc.step([&] { Mailboxes = MailboxCollection(); });
    std::vector<std::string> subkeys;
    proc.step([&] { subkeys = m_values.listSubkeys(Root::CurrentUser, mailboxesKey()); });
    for (const std::string& subkey : subkeys) {
        if (!proc.running())
            break;
        loadMailbox(proc, subkey);
    }
    proc.step([&] { ServerName = asText(m_values.readValue(Root::CurrentUser, clientKey(), "ServerName")); });
    proc.step(
        [&] { PollInterval = asNumber(m_values.readValue(Root::CurrentUser, clientKey(), "PollInterval")); });
    proc.step([&] {
        if (PollInterval == 0)
            PollInterval = kDefaultPollInterval;
    });
    return proc.finish();
}

void clsConfig::loadMailbox(errors::Procedure& proc, const std::string& subkey) {
    const auto mailbox = std::make_shared<clsMailbox>(m_errors);
    const auto read = [&](std::string_view name) {
        return asText(m_values.readValue(Root::CurrentUser, mailboxSubkey(subkey), name));
    };
    proc.step([&] { mailbox->ID = basic::CLng(basic::Val(subkey)); });
    proc.step([&] { mailbox->Name = read("Name"); });
    proc.step([&] { mailbox->Description = read("Description"); });
    proc.step([&] { mailbox->MailboxType = read("MailboxType"); });
    proc.step([&] { Mailboxes.Add(mailbox, mailboxKey(subkey)); });
}

bool clsConfig::SaveConfig() {
    errors::Procedure proc{m_errors, "clsConfig", "SaveConfig"};
    std::optional<registry::Batch> batch;
    proc.step([&] { batch.emplace(m_registry); });
    deleteMailboxKeys(proc);
    proc.step([&] { m_values.writeValue(Root::CurrentUser, clientKey(), "ServerName", ServerName); });
    proc.step([&] { m_values.writeValue(Root::CurrentUser, clientKey(), "PollInterval", PollInterval); });
    const MailboxCollection mailboxes = Mailboxes; // a report lets events run, which may replace them
    for (const auto& mailbox : mailboxes) {
        if (!proc.running())
            break;
        saveMailbox(proc, *mailbox);
    }
    proc.step([&] {
        if (batch)
            batch->commit();
    });
    return proc.finish([&] { batch.reset(); });
}

void clsConfig::deleteMailboxKeys(errors::Procedure& proc) {
    std::vector<std::string> subkeys;
    proc.step([&] { subkeys = m_values.listSubkeys(Root::CurrentUser, mailboxesKey()); });
    for (const std::string& subkey : subkeys) {
        if (!subkey.empty()) // the list's empty element stands for none
            proc.step([&] { m_values.deleteKey(Root::CurrentUser, mailboxSubkey(subkey)); });
    }
}

void clsConfig::saveMailbox(errors::Procedure& proc, const clsMailbox& mailbox) {
    const std::string key = mailboxSubkey(std::to_string(mailbox.ID));
    const auto write = [&](std::string_view name, const std::string& text) {
        proc.step([&] { m_values.writeValue(Root::CurrentUser, key, name, text); });
    };
    write("Name", mailbox.Name);
    write("Description", mailbox.Description);
    write("MailboxType", mailbox.MailboxType);
}

} // namespace data
