// SPDX-FileCopyrightText: 2026 The qmClient authors
// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once
// Whom each server refused last, known to everybody of the program who talks to servers: a wrong password
// that one of them has tried is tried by no other, because servers lock accounts. Any thread.

#include "platform/share/smb/Credentials.h"

#include <map>
#include <mutex>
#include <string>

namespace share::smb {

class Refusals {
public:
    bool knows(const std::string& server, const Credentials& credentials) const;
    void note(const std::string& server, const Credentials& credentials);
    void forget(const std::string& server);

private:
    mutable std::mutex m_mutex;
    std::map<std::string, Credentials> m_refused; // by name without case
};

} // namespace share::smb
