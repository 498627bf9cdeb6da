// SPDX-FileCopyrightText: 2026 The qmClient authors
// SPDX-License-Identifier: GPL-3.0-or-later
#include "dialogs/MailboxSearch.h"

#include "data/basCommon.h"
#include "dialogs/MailboxReading.h"

#include <condition_variable>
#include <mutex>
#include <system_error>
#include <thread>
#include <tuple>
#include <utility>

namespace dialogs {

// What the two threads share.
struct MailboxSearch::Search {
    std::mutex mutex;
    std::condition_variable changed; // when it is done or cancelled
    bool isCancelled = false;
    bool isDone = false;
    int read = 0;
    int total = 0;
    FoundMailboxes found;

    bool wasCancelled() {
        const std::scoped_lock lock(mutex);
        return isCancelled;
    }
    void progress(int done, int ofAll) {
        const std::scoped_lock lock(mutex);
        read = done;
        total = ofAll;
    }
    // What was read, of how many, and whether that is all.
    std::tuple<int, int, bool> state() {
        const std::scoped_lock lock(mutex);
        return {read, total, isDone};
    }
    void cancel() {
        const std::scoped_lock lock(mutex);
        isCancelled = true;
        changed.notify_all();
    }
    void finish(FoundMailboxes result) {
        const std::scoped_lock lock(mutex);
        found = std::move(result);
        isDone = true;
        changed.notify_all();
    }
    FoundMailboxes take() {
        const std::scoped_lock lock(mutex);
        return std::move(found);
    }
    void sleep(std::chrono::milliseconds time) {
        std::unique_lock lock(mutex);
        changed.wait_for(lock, time, [this] { return isCancelled; });
    }
    bool isDoneWithin(std::chrono::milliseconds time) {
        std::unique_lock lock(mutex);
        return changed.wait_for(lock, time, [this] { return isDone; });
    }
};

struct MailboxSearch::Asker {
    std::thread thread;
    std::shared_ptr<Search> search;
    std::shared_ptr<SearchedShare> share;
};

MailboxSearch::MailboxSearch(OpenShare openShare) : m_openShare(std::move(openShare)) {
    m_glances.setInterval(kGlance);
    connect(&m_glances, &QTimer::timeout, this, &MailboxSearch::glance);
}

MailboxSearch::~MailboxSearch() {
    end();
    for (Asker& asker : m_askers)
        asker.thread.join();
}

void MailboxSearch::begin(const std::string& qmPath, Listener listener) {
    cancel();
    if (m_isEnded)
        return;
    joinDone();
    const auto search = std::make_shared<Search>();
    start(qmPath, search);
    m_search = search;
    m_listener = std::move(listener);
    if (search->isDoneWithin(kAtOnce))
        glance();
    if (m_search == search)
        m_glances.start();
}

void MailboxSearch::start(const std::string& qmPath, const std::shared_ptr<Search>& search) {
    auto share = std::make_shared<SearchedShare>(m_openShare(data::mailboxesFolder(qmPath)));
    try {
        std::thread thread([search, share, qmPath] { run(search, *share, qmPath); });
        if (!share->endWaits) {
            thread.detach();
            return;
        }
        m_askers.push_back({std::move(thread), search, share});
    } catch (const std::system_error& error) {
        throw basic::RuntimeError(basic::kOutOfMemory, std::string("No thread: ").append(error.what()));
    }
}

// On the search's own thread.
void MailboxSearch::run(const std::shared_ptr<Search>& search, const SearchedShare& share,
                        const std::string& qmPath) {
    MailboxReading reading(*share.files, {[search] { return search->wasCancelled(); },
                                          [search](int read, int total) { search->progress(read, total); },
                                          [search](std::chrono::milliseconds time) { search->sleep(time); }});
    search->finish(reading.read(qmPath));
}

void MailboxSearch::glance() {
    const auto search = m_search;
    const Listener listener = m_listener;
    if (!search)
        return;
    const auto [read, total, isDone] = search->state();
    if (!isDone || !listener.isReady()) {
        listener.progressed(isDone ? total : read, total);
        return;
    }
    const FoundMailboxes found = search->take();
    cancel();
    listener.done(found);
}

void MailboxSearch::cancel() noexcept {
    m_glances.stop();
    m_listener = {};
    if (const auto search = std::exchange(m_search, nullptr))
        search->cancel();
}

void MailboxSearch::end() noexcept {
    m_isEnded = true;
    cancel();
    for (const Asker& asker : m_askers)
        asker.share->endWaits();
}

// Threads that have nothing left to do but end.
void MailboxSearch::joinDone() {
    std::erase_if(m_askers, [](Asker& asker) {
        const bool isDone = asker.search->isDoneWithin({});
        if (isDone)
            asker.thread.join();
        return isDone;
    });
}

} // namespace dialogs
