// SPDX-FileCopyrightText: 2026 The qmClient authors
// SPDX-License-Identifier: GPL-3.0-or-later
#include "app/LogOns.h"

#include "platform/basic/TextCompare.h"
#include "platform/forms/Text.h"
#include "platform/shell/LogOnDialog.h"
#include "resources/LocalText.h"

#include <sys/prctl.h>

#include <utility>

namespace app {
namespace {

using resources::localText;
using share::smb::Credentials;

// A password that was typed lies in the toolkit's memory: from now on no core file shows it.
void keepMemoryPrivate() {
    ::prctl(PR_SET_DUMPABLE, 0, 0, 0, 0);
}

} // namespace

share::smb::CredentialSource LogOns::source() const {
    return [typed = m_typed, otherwise = m_services.otherwise](const std::string& server) {
        {
            const std::scoped_lock lock(typed->mutex);
            const auto found = typed->byServer.find(basic::foldCase(server));
            if (found != typed->byServer.end())
                return found->second.clone();
        }
        return otherwise(server);
    };
}

void LogOns::refused(const std::string& server) {
    QMetaObject::invokeMethod(
        this, [this, server] { m_services.afterWaiting([this, server] { question(server); }); },
        Qt::QueuedConnection);
}

void LogOns::question(const std::string& server) {
    const std::string name = basic::foldCase(server);
    if (!m_asked.insert(name).second)
        return;
    std::optional<Credentials> typed = m_services.ask(server, source()(server));
    m_asked.erase(name);
    if (!typed)
        return;
    {
        const std::scoped_lock lock(m_typed->mutex);
        m_typed->byServer[name] = std::move(*typed);
    }
    m_services.tryNow();
}

std::optional<Credentials> askForCredentials(const std::string& server, const Credentials& last) {
    keepMemoryPrivate();
    shell::LogOnDialog dialog({.caption = localText(5050, "Log on to %1").arg(forms::toQString(server)),
                               .user = localText(5051, "User name:"),
                               .domain = localText(5054, "Domain:"),
                               .password = localText(5052, "Password:"),
                               .ok = localText(5000, "OK"),
                               .cancel = localText(5001, "Cancel")},
                              forms::toQString(last.user), forms::toQString(last.domain));
    if (dialog.exec() != QDialog::Accepted)
        return std::nullopt;
    std::string password = forms::fromQString(dialog.password());
    Credentials typed = Credentials::of(forms::fromQString(dialog.user()), password);
    share::smb::wipe(password.data(), password.size());
    if (typed.domain.empty())
        typed.domain = forms::fromQString(dialog.domain());
    return typed;
}

} // namespace app
