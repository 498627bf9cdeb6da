// SPDX-FileCopyrightText: 2026 The qmClient authors
// SPDX-License-Identifier: GPL-3.0-or-later
#include "app/CountsAhead.h"

#include "app/CallCount.h"
#include "data/CallLog.h"
#include "data/basCommon.h"
#include "platform/jet/Connection.h"

#include <system_error>
#include <utility>

namespace app {

CountsAhead::CountsAhead(share::smb::SmbServers& servers, share::ShareResolver resolver)
    : m_servers(servers), m_resolver(std::move(resolver)) {}

CountsAhead::~CountsAhead() {
    end();
}

void CountsAhead::end() noexcept {
    m_waiter.cancel();
}

bool CountsAhead::ask(CountQuestion question, Done done) {
    try {
        const auto root = share::UncPath::parse(question.share);
        if (!mayTakeLong(root))
            return false;
        settle(root);
    } catch (const basic::RuntimeError&) {
        return false; // the routine finds out for itself
    }
    try {
        m_thread = std::jthread([this, question = std::move(question), done = std::move(done)] {
            CountAnswers answers = answersTo(question);
            QMetaObject::invokeMethod(
                this,
                [this, done, answers = std::move(answers)] {
                    m_isAsking = false;
                    done(answers);
                },
                Qt::QueuedConnection);
        });
    } catch (const std::system_error&) {
        return false; // no thread now: a poll that waits is better than none
    }
    m_isAsking = true;
    return true;
}

bool CountsAhead::mayTakeLong(const share::UncPath& root) const {
    const share::Route route = m_resolver.resolve(root);
    return route.way == share::Way::Server || m_resolver.slowMountOf(route);
}

// The settings are looked into here, not on the other thread; a mount may be gone when that one looks, and
// the server itself be asked.
void CountsAhead::settle(const share::UncPath& root) {
    m_mapping = m_resolver.mappingOf(root.server());
    const share::ShareResolver withoutMounts([this](std::string_view) { return m_mapping; }, nullptr);
    if (withoutMounts.resolve(root).way == share::Way::Server)
        m_servers.server(root.server());
}

share::ShareResolver CountsAhead::settledResolver() const {
    return {[this](std::string_view) { return m_mapping; }, m_resolver.mountInfo()};
}

CountAnswers CountsAhead::answersTo(const CountQuestion& question) {
    CountAnswers answers;
    answers.isShareThere = m_files.FolderExists(question.share);
    for (const auto& [mailbox, database] : question.databases)
        answers.mailboxes[mailbox] = answers.isShareThere ? answerFor(database) : CountAnswer{};
    return answers;
}

// A server that went away between the opening and the count is a mailbox that is not available, which the
// second question finds out, or one that has come back already.
CountAnswer CountsAhead::answerFor(const std::string& database) {
    CountAnswer answer = countOf(database);
    const bool isOfTheShare = answer.failure && answer.failure->number() >= 0;
    return isOfTheShare ? countOf(database) : answer;
}

CountAnswer CountsAhead::countOf(const std::string& database) {
    CountAnswer answer;
    jet::Connection connection(m_engine);
    try {
        connection.Open(data::connectionString(database)); // fails for one that does not exist, too
    } catch (const std::exception&) { // a mailbox that is not available now, as for everybody
        return answer;
    }
    answer.isAvailable = true;
    try {
        answer.count = callCount(*connection.Execute(data::kCountCalls));
    } catch (const basic::RuntimeError& error) {
        answer.failure = error;
    } catch (const std::exception& error) {
        answer.failure = basic::RuntimeError(basic::kInternalError, error.what());
    }
    return answer;
}

} // namespace app
