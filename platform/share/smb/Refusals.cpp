// SPDX-FileCopyrightText: 2026 The qmClient authors
// SPDX-License-Identifier: GPL-3.0-or-later
#include "platform/share/smb/Refusals.h"

#include "platform/basic/TextCompare.h"

namespace share::smb {

bool Refusals::knows(const std::string& server, const Credentials& credentials) const {
    const std::scoped_lock lock(m_mutex);
    const auto found = m_refused.find(basic::foldCase(server));
    return found != m_refused.end() && found->second == credentials;
}

void Refusals::note(const std::string& server, const Credentials& credentials) {
    const std::scoped_lock lock(m_mutex);
    m_refused[basic::foldCase(server)] = credentials.clone();
}

void Refusals::forget(const std::string& server) {
    const std::scoped_lock lock(m_mutex);
    m_refused.erase(basic::foldCase(server));
}

} // namespace share::smb
