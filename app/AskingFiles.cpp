// SPDX-FileCopyrightText: 2026 The qmClient authors
// SPDX-License-Identifier: GPL-3.0-or-later
#include "app/AskingFiles.h"

namespace app {

// No trap (AskingFiles, FolderExists): its failures are those of the search that calls it.
bool AskingFiles::FolderExists(std::string_view path) {
    for (;;) {
        const int answers = m_desk->answers(m_server);
        if (SmbFileSystemObject::FolderExists(path))
            return true;
        m_desk->waitForAnswer(m_server, m_waiter);
        if (m_desk->answers(m_server) == answers)
            return false;
    }
}

} // namespace app
