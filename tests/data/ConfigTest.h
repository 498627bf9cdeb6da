// SPDX-FileCopyrightText: 2026 The qmClient authors
// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once
// The settings object over a registry in a folder of its own, and the mailboxes it finds or leaves there.

#include "data/clsConfig.h"
#include "tests/data/SettingsWorld.h"

#include <gtest/gtest.h>

#include <memory>
#include <string>
#include <vector>

namespace data {

inline const std::string kClient = "[HKEY_CURRENT_USER\\Software\\Corvantis\\Quillamar\\1.0\\Client]\n";

inline std::string mailboxLines(const std::string& subkey, const std::string& name) {
    return "[HKEY_CURRENT_USER\\Software\\Corvantis\\Quillamar\\1.0\\Client\\Mailboxes\\" + subkey +
           "]\n\"Name\"=\"" + name + "\"\n\"Description\"=\"about " + name + "\"\n\"MailboxType\"=\"M\"\n";
}

class clsConfigTest : public ::testing::Test, protected SettingsWorld {
protected:
    clsConfig config{registry, boxes, errors};

    std::string keysOf(const clsConfig& loaded) {
        std::string keys;
        for (std::int32_t i = 1; i <= loaded.Mailboxes.Count(); ++i)
            keys += loaded.Mailboxes.keyAt(i) + "=" + std::to_string(loaded.Mailboxes.at(i)->ID) + ";";
        return keys;
    }
    std::vector<std::string> storedMailboxes() {
        return values.listSubkeys(registry::Root::CurrentUser,
                                  "Software\\Corvantis\\Quillamar\\1.0\\Client\\Mailboxes");
    }
    void add(std::int32_t id, const std::string& name) {
        auto mailbox = std::make_shared<clsMailbox>(errors);
        mailbox->ID = id;
        mailbox->Name = name;
        mailbox->MailboxType = "M";
        config.Mailboxes.Add(mailbox, "KEY" + std::to_string(id));
    }
};

} // namespace data
