// SPDX-FileCopyrightText: 2026 The qmClient authors
// SPDX-License-Identifier: GPL-3.0-or-later
#include "app/LogOnDesk.h"

#include "platform/basic/RuntimeError.h"
#include "platform/basic/TextCompare.h"

#include <sys/eventfd.h>

#include <cerrno>
#include <chrono>
#include <utility>

namespace app {
namespace {

using share::Waited;

constexpr std::chrono::hours kLook{1}; // people are given all the time they want

share::FileDescriptor newSignal() {
    share::FileDescriptor signal(::eventfd(0, EFD_CLOEXEC | EFD_NONBLOCK));
    if (!signal.isOpen())
        throw basic::errorFromErrno(errno, "wait", "for a password");
    return signal;
}

} // namespace

void LogOnDesk::whenQuestioned(Told told) {
    const std::scoped_lock lock(m_mutex);
    m_told = std::move(told);
}

void LogOnDesk::refuse(const std::string& server) {
    const std::scoped_lock lock(m_mutex);
    Server& known = m_servers[basic::foldCase(server)];
    known.isRefused = true;
    if (known.question || !m_told)
        return;
    known.question = std::make_shared<share::FileDescriptor>(newSignal());
    m_told(server);
}

bool LogOnDesk::isRefused(const std::string& server) const {
    const std::scoped_lock lock(m_mutex);
    const auto known = m_servers.find(basic::foldCase(server));
    return known != m_servers.end() && known->second.isRefused;
}

LogOnDesk::Question LogOnDesk::question(const std::string& server) const {
    const std::scoped_lock lock(m_mutex);
    const auto known = m_servers.find(basic::foldCase(server));
    return known != m_servers.end() ? known->second.question : nullptr;
}

bool LogOnDesk::isQuestionOpen(const std::string& server) const {
    return question(server) != nullptr;
}

void LogOnDesk::type(const std::string& server, Credentials typed) {
    const std::scoped_lock lock(m_mutex);
    Server& known = m_servers[basic::foldCase(server)];
    known.typed = std::move(typed);
    known.isRefused = false;
    ++known.answers;
}

void LogOnDesk::closeQuestion(const std::string& server) {
    const std::scoped_lock lock(m_mutex);
    const auto known = m_servers.find(basic::foldCase(server));
    if (known == m_servers.end())
        return;
    if (const auto open = std::exchange(known->second.question, nullptr))
        ::eventfd_write(open->get(), 1);
}

std::optional<share::smb::Credentials> LogOnDesk::typedFor(const std::string& server) const {
    const std::scoped_lock lock(m_mutex);
    const auto known = m_servers.find(basic::foldCase(server));
    if (known == m_servers.end() || !known->second.typed)
        return std::nullopt;
    return known->second.typed->clone();
}

int LogOnDesk::answers(const std::string& server) const {
    const std::scoped_lock lock(m_mutex);
    const auto known = m_servers.find(basic::foldCase(server));
    return known != m_servers.end() ? known->second.answers : 0;
}

void LogOnDesk::waitForAnswer(const std::string& server, share::Waiter& waiter) const {
    const Question open = question(server);
    Waited waited = open ? Waited::TimeOver : Waited::Ready;
    while (waited == Waited::TimeOver)
        waited = waiter.untilReadable(open->get(), kLook);
}

} // namespace app
