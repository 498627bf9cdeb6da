// SPDX-FileCopyrightText: 2026 The qmClient authors
// SPDX-License-Identifier: GPL-3.0-or-later
#include "app/RememberedLogOns.h"

#include "platform/basic/RuntimeError.h"
#include "platform/basic/TextCompare.h"
#include "platform/forms/Text.h"

#include <QStringList>
#include <QTimer>

#include <sys/eventfd.h>

#include <cerrno>
#include <utility>

namespace app {
namespace {

using share::Waiter;
using share::smb::Credentials;

constexpr std::chrono::milliseconds kPatience{3'000}; // of one request
constexpr QChar kSeparator = u'\n';
constexpr int kParts = 3;

QString textOf(const Credentials& credentials) {
    const std::string_view password = credentials.password.view();
    return forms::toQString(credentials.domain) + kSeparator + forms::toQString(credentials.user) +
           kSeparator + QString::fromUtf8(password.data(), static_cast<qsizetype>(password.size()));
}

// Nothing for a text that somebody else put there.
std::optional<Credentials> credentialsOf(const QString& text) {
    const QStringList parts = text.split(kSeparator);
    if (parts.size() != kParts || parts[1].isEmpty())
        return std::nullopt;
    std::string password = forms::fromQString(parts[2]);
    Credentials credentials{forms::fromQString(parts[0]), forms::fromQString(parts[1]),
                            share::smb::Secret(password)};
    share::smb::wipe(password.data(), password.size());
    return credentials;
}

QString nameOf(const std::string& server) {
    return QStringLiteral("\\\\") + forms::toQString(basic::foldCase(server));
}

} // namespace

std::shared_ptr<RememberedLogOns::Entry> RememberedLogOns::Desk::entry(const std::string& name) {
    const std::scoped_lock lock(mutex);
    std::shared_ptr<Entry>& entry = entries[name];
    if (entry)
        return entry;
    entry = std::make_shared<Entry>();
    entry->known = share::FileDescriptor(::eventfd(0, EFD_CLOEXEC | EFD_NONBLOCK));
    if (!entry->known.isOpen())
        throw basic::errorFromErrno(errno, "wait", "for the keyring");
    if (owner != nullptr)
        QMetaObject::invokeMethod(
            owner, [asked = owner, name] { asked->look(name); }, Qt::QueuedConnection);
    return entry;
}

bool RememberedLogOns::Desk::isKnown(const Entry& entry) {
    const std::scoped_lock lock(mutex);
    return entry.isKnown || owner == nullptr;
}

void RememberedLogOns::Desk::learn(const std::string& name, std::optional<Credentials> who) {
    const std::shared_ptr<Entry> learned = entry(name);
    const std::scoped_lock lock(mutex);
    learned->who = std::move(who);
    learned->isKnown = true;
    ::eventfd_write(learned->known.get(), 1);
}

RememberedLogOns::RememberedLogOns(shell::Keyring& keyring, std::function<void()> failed)
    : m_keyring(keyring), m_failed(std::move(failed)) {
    m_desk->owner = this;
}

RememberedLogOns::~RememberedLogOns() {
    const std::scoped_lock lock(m_desk->mutex);
    m_desk->owner = nullptr;
}

share::smb::SmbServer::Preparation RememberedLogOns::preparation() const {
    return [desk = m_desk](const std::string& server, Waiter& waiter) {
        const std::shared_ptr<Entry> entry = desk->entry(basic::foldCase(server));
        if (desk->isKnown(*entry))
            return;
        waiter.untilReadable(entry->known.get(), kPatience);
        if (!desk->isKnown(*entry))
            throw basic::RuntimeError(basic::kPathNotFound, "the keyring is not open yet");
    };
}

share::smb::CredentialSource RememberedLogOns::source(share::smb::CredentialSource otherwise) const {
    return [desk = m_desk, otherwise = std::move(otherwise)](const std::string& server) {
        {
            const std::scoped_lock lock(desk->mutex);
            const auto found = desk->entries.find(basic::foldCase(server));
            if (found != desk->entries.end() && found->second && found->second->who)
                return found->second->who->clone();
        }
        return otherwise(server);
    };
}

void RememberedLogOns::look(const std::string& name) {
    if (!shell::Keyring::isThere()) {
        m_desk->learn(name, std::nullopt);
        return;
    }
    m_keyring.read(nameOf(name), [desk = m_desk, name](const std::optional<QString>& text) {
        if (text)
            share::smb::keepMemoryPrivate();
        desk->learn(name, text ? credentialsOf(*text) : std::nullopt);
    });
    QTimer::singleShot(kLongestWait, this, [this, name] {
        if (!m_desk->isKnown(*m_desk->entry(name)))
            m_desk->learn(name, std::nullopt);
    });
}

bool RememberedLogOns::isRemembered(const std::string& server) const {
    const std::scoped_lock lock(m_desk->mutex);
    const auto found = m_desk->entries.find(basic::foldCase(server));
    return found != m_desk->entries.end() && found->second && found->second->who;
}

void RememberedLogOns::remember(const std::string& server, const Credentials& credentials) {
    m_desk->learn(basic::foldCase(server), credentials.clone());
    m_keyring.write(nameOf(server), textOf(credentials), m_failed);
}

void RememberedLogOns::forget(const std::string& server) {
    if (!isRemembered(server))
        return;
    m_desk->learn(basic::foldCase(server), std::nullopt);
    m_keyring.remove(nameOf(server));
}

} // namespace app
