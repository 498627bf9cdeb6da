// SPDX-FileCopyrightText: 2026 The qmClient authors
// SPDX-License-Identifier: GPL-3.0-or-later
#include "platform/shell/AvahiComputers.h"

#include <QDBusPendingCallWatcher>
#include <QDBusPendingReply>
#include <QDBusServiceWatcher>

#include <utility>

namespace shell {
namespace {

const QString kService = QStringLiteral("org.freedesktop.Avahi");
const QString kServer = QStringLiteral("org.freedesktop.Avahi.Server");
const QString kBrowser = QStringLiteral("org.freedesktop.Avahi.ServiceBrowser");
const QString kType = QStringLiteral("_smb._tcp");
constexpr int kAnyInterface = -1;
constexpr int kAnyProtocol = -1;
constexpr uint kNoFlags = 0;
constexpr int kTimeoutMilliseconds = 5000;
constexpr int kMostEarly = 1000;

// Of an ItemNew signal and of ResolveService's reply.
enum Argument { kInterface, kProtocol, kName, kServiceType, kDomain, kHost };

QDBusMessage call(const QString& path, const QString& interface, const QString& method) {
    QDBusMessage message = QDBusMessage::createMethodCall(kService, path, interface, method);
    message.setAutoStartService(false);
    return message;
}

} // namespace

AvahiComputers::AvahiComputers(QDBusConnection bus) : m_bus(std::move(bus)) {}

AvahiComputers::~AvahiComputers() {
    if (!m_browser.path().isEmpty())
        m_bus.send(call(m_browser.path(), kBrowser, QStringLiteral("Free")));
}

// The daemon may tell what it knows before it has said which browser is ours: its signals are listened to
// whatever object they come from, and sorted out later.
void AvahiComputers::listen() {
    m_bus.connect(kService, {}, kBrowser, QStringLiteral("ItemNew"), this,
                  SLOT(itemNew(int, int, QString, QString, QString, uint, QDBusMessage)));
    m_bus.connect(kService, {}, kBrowser, QStringLiteral("AllForNow"), this, SLOT(allForNow(QDBusMessage)));
    m_bus.connect(kService, {}, kBrowser, QStringLiteral("Failure"), this,
                  SLOT(failure(QString, QDBusMessage)));
}

void AvahiComputers::start() {
    if (!m_bus.isConnected()) {
        allTold();
        return;
    }
    listen();
    auto* daemon =
        new QDBusServiceWatcher(kService, m_bus, QDBusServiceWatcher::WatchForUnregistration, this);
    connect(daemon, &QDBusServiceWatcher::serviceUnregistered, this, &AvahiComputers::allTold);
    QDBusMessage message = call(QStringLiteral("/"), kServer, QStringLiteral("ServiceBrowserNew"));
    message << kAnyInterface << kAnyProtocol << kType << QString() << kNoFlags;
    auto* reply = new QDBusPendingCallWatcher(m_bus.asyncCall(message, kTimeoutMilliseconds), this);
    connect(reply, &QDBusPendingCallWatcher::finished, this, [this, reply] {
        reply->deleteLater();
        const QDBusPendingReply<QDBusObjectPath> browser = *reply;
        if (browser.isError()) {
            allTold();
            return;
        }
        m_browser = browser.value();
        for (const QDBusMessage& early : std::exchange(m_early, {})) {
            if (early.member() == QStringLiteral("ItemNew"))
                resolve(early);
            else
                allForNow(early);
        }
    });
}

bool AvahiComputers::isOurs(const QDBusMessage& message) const {
    return !m_browser.path().isEmpty() && message.path() == m_browser.path();
}

void AvahiComputers::itemNew(int, int, const QString&, const QString&, const QString&, uint,
                             const QDBusMessage& message) {
    if (m_browser.path().isEmpty() && m_early.size() < kMostEarly)
        m_early.append(message);
    else
        resolve(message);
}

void AvahiComputers::resolve(const QDBusMessage& item) {
    if (!isOurs(item))
        return;
    const QVariantList service = item.arguments();
    QDBusMessage message = call(QStringLiteral("/"), kServer, QStringLiteral("ResolveService"));
    message << service[kInterface] << service[kProtocol] << service[kName] << service[kServiceType]
            << service[kDomain] << kAnyProtocol << kNoFlags;
    ++m_resolving;
    auto* reply = new QDBusPendingCallWatcher(m_bus.asyncCall(message, kTimeoutMilliseconds), this);
    connect(reply, &QDBusPendingCallWatcher::finished, this, [this, reply] {
        reply->deleteLater();
        --m_resolving;
        const QVariantList resolved = reply->reply().arguments();
        if (!reply->isError() && resolved.size() > kHost)
            Q_EMIT found(resolved[kHost].toString(), resolved[kName].toString());
        endSearch();
    });
}

void AvahiComputers::allForNow(const QDBusMessage& message) {
    if (m_browser.path().isEmpty()) {
        if (m_early.size() < kMostEarly)
            m_early.append(message);
        return;
    }
    if (!isOurs(message))
        return;
    allTold();
}

void AvahiComputers::failure(const QString&, const QDBusMessage& message) {
    allForNow(message);
}

void AvahiComputers::allTold() {
    m_isAllTold = true;
    endSearch();
}

void AvahiComputers::endSearch() {
    if (!m_isAllTold || m_resolving > 0 || m_isSearched)
        return;
    m_isSearched = true;
    Q_EMIT searched();
}

} // namespace shell
