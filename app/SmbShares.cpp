// SPDX-FileCopyrightText: 2026 The qmClient authors
// SPDX-License-Identifier: GPL-3.0-or-later
#include "app/SmbShares.h"

#include "platform/basic/RuntimeError.h"
#include "platform/share/smb/ShareNames.h"

namespace app {
namespace {

constexpr std::chrono::seconds kPatience{20};

share::smb::SmbServer::Surroundings patient(share::smb::SmbServer::Surroundings surroundings) {
    surroundings.deadline = kPatience;
    return surroundings;
}

} // namespace

SmbShares::SmbShares(share::smb::SmbServer::Surroundings surroundings,
                     share::smb::SmbServers::Addresses addresses)
    : m_servers(patient(std::move(surroundings)), std::move(addresses)),
      m_thread([this](const std::stop_token& stop) { run(stop); }) {}

SmbShares::~SmbShares() {
    m_thread.request_stop();
    m_waiter.cancel();
}

void SmbShares::list(const QString& computer) {
    const std::string name = computer.toStdString();
    m_servers.server(name).tryNow(); // its address is looked up here, not on the other thread
    {
        const std::scoped_lock lock(m_mutex);
        m_computers.push_back(name);
    }
    m_wanted.notify_one();
}

void SmbShares::run(const std::stop_token& stop) {
    for (;;) {
        std::unique_lock lock(m_mutex);
        if (!m_wanted.wait(lock, stop, [this] { return !m_computers.empty(); }))
            return;
        const std::string computer = std::move(m_computers.front());
        m_computers.pop_front();
        lock.unlock();
        answer(computer);
    }
}

void SmbShares::answer(const std::string& computer) {
    const QString name = QString::fromStdString(computer);
    try {
        QStringList shares;
        for (const std::string& share :
             share::smb::shareNames(m_servers.server(computer), computer, m_waiter))
            shares.append(QString::fromStdString(share));
        QMetaObject::invokeMethod(
            this, [this, name, shares] { Q_EMIT listed(name, shares); }, Qt::QueuedConnection);
    } catch (const basic::RuntimeError&) {
        QMetaObject::invokeMethod(
            this, [this, name] { Q_EMIT failed(name); }, Qt::QueuedConnection);
    }
}

} // namespace app
