// SPDX-FileCopyrightText: 2026 The qmClient authors
// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once
// One mailbox as the server keeps it: a folder with the call log's database and, beside it, a sound file for
// each call with a message. Takes part in sharing: each change is made under a user lock and told to other
// programs. Holds no file between two calls. See docs/demo-server.md.

#include "tools/demo/DemoCalls.h"

#include <span>
#include <string>

namespace demo {

class DemoMailbox {
public:
    // `folder` is a name of the operating system.
    explicit DemoMailbox(std::string folder) : m_folder(std::move(folder)) {}

    bool exists() const;
    // Makes folder and database, with an empty call log. RuntimeError when the database is there already.
    void create(std::string_view name, std::string_view description, const basic::Date& now) const;
    // The sound files first, so that no call is listed before its message is there.
    // Waits some seconds while somebody else uses the database; then error kProviderFailure.
    void append(std::span<const Call> calls) const;

    std::string databasePath() const { return m_folder + "/qmLog.mdb"; }
    std::string soundPath(const Call& call) const { return m_folder + "/" + call.callId + ".wav"; }

private:
    void writeSound(const Call& call) const;

    std::string m_folder;
};

} // namespace demo
