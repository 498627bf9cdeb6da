// SPDX-FileCopyrightText: 2026 The qmClient authors
// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once
// Asks servers for their shares, one after the other on a thread of its own, in qmshare processes of their
// own: a server may take longer to name its shares for the first time than a poll would ever wait. Letting it
// go ends everything at once. User-interface thread.

#include "platform/share/ThreadWaiter.h"
#include "platform/share/smb/SmbServers.h"
#include "platform/shell/ShareSource.h"

#include <condition_variable>
#include <deque>
#include <mutex>
#include <string>
#include <thread>

namespace app {

class SmbShares final : public shell::ShareSource {
    Q_OBJECT
public:
    SmbShares(share::smb::SmbServer::Surroundings surroundings, share::smb::SmbServers::Addresses addresses);
    ~SmbShares() override;

    void list(const QString& computer) override;

private:
    void run(const std::stop_token& stop);
    void answer(const std::string& computer);

    share::smb::SmbServers m_servers;
    share::ThreadWaiter m_waiter; // the thread's
    std::mutex m_mutex;
    std::condition_variable_any m_wanted;
    std::deque<std::string> m_computers;
    std::jthread m_thread; // last: what it uses must outlive it
};

} // namespace app
