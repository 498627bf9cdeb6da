// SPDX-FileCopyrightText: 2026 The qmClient authors
// SPDX-License-Identifier: GPL-3.0-or-later
#include "platform/share/smb/SmbServer.h"

#include "platform/share/smb/Failure.h"
#include "platform/share/smb/LogOnRecord.h"
#include "platform/share/smb/MessageDecoder.h"
#include "platform/share/smb/MessageEncoder.h"

#include <cerrno>
#include <utility>

namespace share::smb {
namespace {

// Others' requests come first, each within its deadline; more than that is a knot.
constexpr std::chrono::milliseconds kLongestTurn{50'000};
// A connection that was idle for so long may be gone without a word: the machine slept, a firewall forgot it.
// A new one is quicker than finding out.
constexpr std::chrono::milliseconds kLongestIdle{90'000};

bool isRefusedShare(const Response& response) {
    return response.stage == Stage::Share && (response.failure == EACCES || response.failure == EPERM);
}

} // namespace

SmbServer::SmbServer(std::string name, ServerAddress address, const Surroundings& surroundings)
    : m_name(std::move(name)), m_address(std::move(address)), m_surroundings(surroundings),
      m_backOff(surroundings.now, surroundings.spread) {}

Response SmbServer::call(const Request& request, Waiter& waiter, std::string_view what) {
    const Turn turn(m_turns, waiter, kLongestTurn);
    forgetIfAsked();
    if (m_isRefused || m_backOff.isPausing())
        throw failure(m_lastFailure, what, request.path);
    startHelper(waiter);
    if (m_isRefused)
        throw failure(m_lastFailure, what, request.path);
    Response response = m_helper ? exchange(request, waiter) : m_lastFailure;
    judge(response);
    if (response.stage != Stage::None)
        throw failure(response, what, request.path);
    return response;
}

// Accounts are locked after a few wrong passwords: a click is no reason to try the same one again.
void SmbServer::forgetIfAsked() {
    const bool anew = m_logOnAnew.exchange(false);
    if (!m_tryNow.exchange(false) && !anew)
        return;
    m_backOff.succeeded();
    if (anew)
        m_surroundings.refusals->forget(m_name);
    if ((m_isRefused || m_isShareRefused) && (anew || isSomebodyElse()))
        forgetRefusal();
}

bool SmbServer::isSomebodyElse() {
    return m_surroundings.credentials(m_name) != m_credentials;
}

void SmbServer::forgetRefusal() {
    m_isRefused = m_isShareRefused = false;
    m_helper.reset();
}

void SmbServer::startHelper(Waiter& waiter) {
    if (m_helper && m_surroundings.now() - m_lastUse > kLongestIdle)
        m_helper.reset();
    if (m_helper)
        return;
    m_surroundings.prepare(m_name, waiter);
    m_credentials = m_surroundings.credentials(m_name);
    if (m_surroundings.refusals->knows(m_name, m_credentials)) {
        m_isRefused = true;
        m_lastFailure = {.stage = Stage::LogOn, .failure = EACCES};
        return;
    }
    m_helper = std::make_unique<HelperProcess>(m_surroundings.program);
    Request logOn{.verb = Verb::LogOn, .length = m_address.port, .path = m_address.host};
    logOn.data = encodeLogOn(m_credentials);
    m_lastFailure = exchange(logOn, waiter);
    wipe(logOn.data.data(), logOn.data.size());
}

// Sends one request and waits for its response. Without one the process is ended: an answer that comes late
// would be taken for the next request's.
Response SmbServer::exchange(const Request& request, Waiter& waiter) {
    std::vector<std::byte> packet = encode(request);
    const bool isSent = m_helper->socket().send(packet);
    wipe(packet.data(), packet.size());
    if (!isSent)
        return lost(ECONNABORTED);
    const auto deadline = request.verb == Verb::List ? m_surroundings.listDeadline : m_surroundings.deadline;
    switch (waiter.untilReadable(m_helper->socket().descriptor(), deadline)) {
    case Waited::TimeOver:
        return lost(ETIMEDOUT);
    case Waited::Cancelled:
        return lost(ECANCELED);
    case Waited::Ready:
        break;
    }
    m_lastUse = m_surroundings.now();
    try {
        if (const auto answer = m_helper->socket().receive())
            return decodeResponse(*answer);
    } catch (const basic::RuntimeError&) { // nonsense is as bad as silence
    }
    return lost(ECONNABORTED);
}

Response SmbServer::lost(std::int32_t errnoValue) {
    m_helper.reset();
    return {.stage = Stage::Connect, .failure = errnoValue};
}

void SmbServer::judge(const Response& response) {
    switch (response.stage) {
    case Stage::None:
    case Stage::Path:
        m_backOff.succeeded();
        m_isShareRefused = false;
        return;
    case Stage::Handle: // found out without asking the server
        return;
    case Stage::LogOn:
        m_isRefused = true;
        m_surroundings.refusals->note(m_name, m_credentials);
        m_surroundings.refused(m_name);
        break;
    default:
        if (isRefusedShare(response) && !std::exchange(m_isShareRefused, true))
            m_surroundings.refused(m_name);
        if (response.failure != ECANCELED)
            m_backOff.failed();
        break;
    }
    m_lastFailure = response;
}

} // namespace share::smb
