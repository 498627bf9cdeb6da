// SPDX-FileCopyrightText: 2026 The qmClient authors
// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once
// The settings: server, poll interval in seconds and the watched mailboxes in their stored order, keyed "KEY"
// and the ID. Created once and kept for the program's life; the options dialog edits it and saves. Every
// procedure runs under the error trap. User-interface thread.

#include "data/basRegistry.h"
#include "data/clsMailbox.h"
#include "platform/basic/Collection.h"

#include <cstdint>
#include <memory>
#include <string>
#include <string_view>

namespace errors {
class ErrorHandler;
class Procedure;
} // namespace errors

namespace data {

using MailboxCollection = basic::Collection<std::shared_ptr<clsMailbox>>;

inline constexpr std::int32_t kDefaultPollInterval = 10;
inline constexpr std::string_view kSettingsKey = "Software\\Corvantis\\Quillamar\\1.0";

class clsConfig {
public:
    clsConfig(registry::Registry& registry, forms::MessageBoxes& boxes, errors::ErrorHandler& errors);
    clsConfig(const clsConfig&) = delete;
    clsConfig& operator=(const clsConfig&) = delete;

    // Replaces everything by what the registry holds. A store without mailboxes gives one with ID 0 and key
    // KEY.
    bool LoadConfig();
    // Replaces what the registry holds, all of it or nothing.
    bool SaveConfig();
    // Forgets the mailboxes; server and interval stay.
    bool Clear();
    // Whether the user watches a mailbox at all: the one that stands for an empty store does not count.
    bool watchesMailboxes() const;

    std::string ServerName;
    std::int32_t PollInterval = 0;
    MailboxCollection Mailboxes;

private:
    void Class_Initialize();
    void loadMailbox(errors::Procedure& proc, const std::string& subkey);
    void deleteMailboxKeys(errors::Procedure& proc);
    void saveMailbox(errors::Procedure& proc, const clsMailbox& mailbox);

    registry::Registry& m_registry;
    basRegistry m_values;
    errors::ErrorHandler& m_errors;
};

} // namespace data
