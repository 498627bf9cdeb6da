// SPDX-FileCopyrightText: 2026 The qmClient authors
// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once
// One server as the client sees it: asks its qmshare process, starts it when it is first needed and again
// when it ended, kills it when an answer does not come in time. A server that does not answer is left alone
// for growing pauses, in which requests fail at once; one that refused its user is not asked again with the
// same credentials, whoever of the program was refused. Threads may share it: requests go one after the
// other. Everything handed in must outlive it.

#include "platform/share/smb/BackOff.h"
#include "platform/share/smb/Credentials.h"
#include "platform/share/smb/HelperProcess.h"
#include "platform/share/smb/Messages.h"
#include "platform/share/smb/Refusals.h"
#include "platform/share/smb/ServerAddress.h"
#include "platform/share/smb/Turn.h"

#include <atomic>
#include <cstdint>
#include <functional>
#include <memory>
#include <optional>
#include <string>
#include <string_view>

namespace share::smb {

// Who is to log on to a server with this name; asked when a connection is made, on the thread that needs it.
using CredentialSource = std::function<Credentials(const std::string& server)>;

class SmbServer {
public:
    using Preparation = std::function<void(const std::string& server, Waiter& waiter)>;

    struct Surroundings {
        std::string program; // qmshare
        std::chrono::milliseconds deadline{3'000};
        // For the request that fetches a whole folder; whoever makes it makes sure of the server before.
        std::chrono::milliseconds listDeadline{30'000};
        ElapsedTime now = bootTime;
        BackOff::Spread spread;
        CredentialSource credentials;
        // Before the source is asked for a new connection: may wait until it knows, or throw.
        Preparation prepare = [](const std::string&, Waiter&) {};
        // Told of a server that refuses its user, or refuses him the share, on the thread that found out:
        // once for each user and password.
        std::function<void(const std::string& server)> refused = [](const std::string&) {};
        std::shared_ptr<Refusals> refusals = std::make_shared<Refusals>();
    };

    SmbServer(std::string name, ServerAddress address, const Surroundings& surroundings);
    SmbServer(const SmbServer&) = delete;
    SmbServer& operator=(const SmbServer&) = delete;

    // The response of a request that succeeded; of any other what failure() makes of it. `what` is what was
    // to be done, for the text.
    Response call(const Request& request, Waiter& waiter, std::string_view what);

    // The user wants it now: the next request is made at once. A user who was refused is asked for again, and
    // tried only if it is another one or has another password. Any thread.
    void tryNow() noexcept { m_tryNow = true; }
    // The same, and a refused user is tried again as well.
    void logOnAnew() noexcept { m_logOnAnew = true; }
    // A number that no other file of this server ever had.
    std::uint32_t newHandle() noexcept { return ++m_lastHandle; }
    // Of the running helper; -1 without one.
    pid_t helperId() const noexcept { return m_helper ? m_helper->id() : -1; }

private:
    void forgetIfAsked();
    void forgetRefusal();
    bool isSomebodyElse();
    void startHelper(Waiter& waiter);
    Response exchange(const Request& request, Waiter& waiter);
    Response lost(std::int32_t errnoValue);
    void judge(const Response& response);

    const std::string m_name;
    const ServerAddress m_address;
    const Surroundings& m_surroundings;
    TurnGate m_turns;
    std::atomic<bool> m_tryNow = false;
    std::atomic<bool> m_logOnAnew = false;
    std::atomic<std::uint32_t> m_lastHandle = 0;

    // Only for who has the turn.
    BackOff m_backOff;
    Response m_lastFailure;
    bool m_isRefused = false;
    bool m_isShareRefused = false;
    Credentials m_credentials; // of the last attempt
    std::unique_ptr<HelperProcess> m_helper;
    std::chrono::milliseconds m_lastUse{0};
};

} // namespace share::smb
