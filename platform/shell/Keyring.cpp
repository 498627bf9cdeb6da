// SPDX-FileCopyrightText: 2026 The qmClient authors
// SPDX-License-Identifier: GPL-3.0-or-later
#include "platform/shell/Keyring.h"

#include <QDBusConnection>
#include <QDBusConnectionInterface>
#include <QDBusReply>
#include <QStringList>
#include <qt6keychain/keychain.h>

#include <algorithm>
#include <array>
#include <utility>

namespace shell {
namespace {

const QString kProgram = QStringLiteral("qmClient");

// Jobs delete themselves when they are done.
template <typename Job>
Job& newJob(const QString& name) {
    auto* job = new Job(kProgram);
    job->setAutoDelete(true);
    job->setInsecureFallback(false);
    job->setKey(name);
    return *job;
}

} // namespace

bool Keyring::isThere() {
    const std::array services{QStringLiteral("org.freedesktop.secrets"), QStringLiteral("org.kde.kwalletd5"),
                              QStringLiteral("org.kde.kwalletd6")};
    const QDBusConnectionInterface* bus = QDBusConnection::sessionBus().interface();
    if (bus == nullptr)
        return false;
    const QStringList startable = bus->activatableServiceNames().value();
    return std::ranges::any_of(services, [&](const QString& service) {
        return startable.contains(service) || bus->isServiceRegistered(service).value();
    });
}

void Keyring::read(const QString& name, Found found) {
    auto& job = newJob<QKeychain::ReadPasswordJob>(name);
    connect(&job, &QKeychain::Job::finished, this, [&job, found = std::move(found)] {
        found(job.error() == QKeychain::NoError ? std::optional(job.textData()) : std::nullopt);
    });
    job.start();
}

void Keyring::write(const QString& name, const QString& text, std::function<void()> failed) {
    auto& job = newJob<QKeychain::WritePasswordJob>(name);
    job.setTextData(text);
    connect(&job, &QKeychain::Job::finished, this, [&job, failed = std::move(failed)] {
        if (job.error() != QKeychain::NoError)
            failed();
    });
    job.start();
}

void Keyring::remove(const QString& name) {
    newJob<QKeychain::DeletePasswordJob>(name).start();
}

} // namespace shell
