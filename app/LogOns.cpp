// SPDX-FileCopyrightText: 2026 The qmClient authors
// SPDX-License-Identifier: GPL-3.0-or-later
#include "app/LogOns.h"

#include "platform/basic/TextCompare.h"
#include "platform/forms/Text.h"
#include "platform/forms/TransientParent.h"
#include "resources/LocalText.h"

#include <QScopeGuard>

#include <utility>

namespace app {
namespace {

using resources::localText;
using share::smb::Credentials;

} // namespace

LogOns::LogOns(Services services) : m_services(std::move(services)) {
    m_desk->whenQuestioned([this](const std::string& server) {
        QMetaObject::invokeMethod(
            this, [this, server] { m_services.afterWaiting([this, server] { questioned(server); }); },
            Qt::QueuedConnection);
    });
}

LogOns::~LogOns() {
    m_desk->whenQuestioned(nullptr);
}

share::smb::CredentialSource LogOns::source() const {
    return [desk = m_desk, otherwise = m_services.otherwise](const std::string& server) {
        std::optional<Credentials> typed = desk->typedFor(server);
        return typed ? std::move(*typed) : otherwise(server);
    };
}

std::function<void(const std::string&)> LogOns::refusalHook() const {
    return [desk = m_desk](const std::string& server) { desk->refuse(server); };
}

// Somebody may have asked and been answered before this question's turn came.
void LogOns::questioned(const std::string& server) {
    if (m_desk->isQuestionOpen(server) && ask(server))
        m_services.goOn();
}

bool LogOns::askNow(const std::string& server) {
    return m_desk->isRefused(server) && ask(server);
}

bool LogOns::reach(const std::string& server, const std::function<bool()>& isThere) {
    m_services.tryNow();
    bool isReached = isThere();
    while (!isReached && askNow(server))
        isReached = isThere();
    return isReached;
}

bool LogOns::ask(const std::string& server) {
    const std::string name = basic::foldCase(server);
    if (!m_asked.insert(name).second)
        return false;
    const auto end = qScopeGuard([this, &name] {
        m_asked.erase(name);
        m_desk->closeQuestion(name);
    });
    std::optional<Answer> answer = m_services.ask(server, source()(server));
    if (!answer)
        return false;
    m_services.remember(server, answer->who, answer->isToBeRemembered);
    m_desk->type(name, std::move(answer->who));
    m_services.tryNow();
    return true;
}

std::optional<LogOns::Answer> askForCredentials(const std::string& server, const Credentials& last,
                                                shell::Remembering remembering) {
    share::smb::keepMemoryPrivate(); // what is typed lies in the toolkit's memory
    shell::LogOnDialog dialog({.caption = localText(5050, "Log on to %1").arg(forms::toQString(server)),
                               .user = localText(5051, "&User name:"),
                               .domain = localText(5054, "&Domain:"),
                               .password = localText(5052, "&Password:"),
                               .remember = localText(5053, "&Remember password"),
                               .cannotRemember = localText(
                                   5055, "This session has no keyring in which the password could be kept."),
                               .ok = localText(5000, "OK"),
                               .cancel = localText(5001, "Cancel")},
                              forms::toQString(last.user), forms::toQString(last.domain), remembering);
    forms::standOverTheActiveWindow(dialog);
    if (dialog.exec() != QDialog::Accepted)
        return std::nullopt;
    std::string password = forms::fromQString(dialog.password());
    LogOns::Answer answer{Credentials::of(forms::fromQString(dialog.user()), password),
                          dialog.isToBeRemembered()};
    share::smb::wipe(password.data(), password.size());
    if (answer.who.domain.empty())
        answer.who.domain = forms::fromQString(dialog.domain());
    return answer;
}

} // namespace app
