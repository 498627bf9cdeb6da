// SPDX-FileCopyrightText: 2026 The qmClient authors
// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once
// Calls into mounts that a server or a program answers for. Such a call can hang for minutes, or for ever,
// and nothing ends it; so each is made on a thread of its own, and the caller waits as its waiter says. A
// call that does not return in its time, or whose wait is cancelled, is left behind: its thread goes on, and
// what it brings is thrown away. Until it returns, no further call into that mount is begun, so that threads
// do not pile up there. One thread uses an object; the waiter must outlive it.

#include "platform/basic/RuntimeError.h"
#include "platform/share/MountTable.h"
#include "platform/share/Waiter.h"

#include <chrono>
#include <functional>
#include <future>
#include <map>
#include <memory>
#include <string>
#include <utility>

namespace share {

// How long a mount is waited for.
struct MountDeadlines {
    // What takes one request or a few of them: a mount that is longer about it does not answer.
    std::chrono::milliseconds few{3'000};
    // What depends on how much there is: the names of a full folder, all that was written.
    std::chrono::milliseconds many{30'000};
};

// Error 76 of a call that was begun: what it is about is in use until it returns.
class CallLeftBehind final : public basic::RuntimeError {
public:
    explicit CallLeftBehind(std::string description)
        : RuntimeError(basic::kPathNotFound, std::move(description)) {}
};

class MountCalls {
public:
    enum class Requests { Few, Many };

    explicit MountCalls(Waiter& waiter, MountDeadlines deadlines = {})
        : m_waiter(waiter), m_deadlines(deadlines) {}

    // Asks the file system for its size, which hardly any answers from memory. Throws as run() does when
    // nobody answers; whatever the answer is, somebody did.
    void reach(const SlowMount& mount);

    // What `work` answers or throws. It must own, or share, all it touches; nothing of it is left when this
    // returns. CallLeftBehind; error 76 when it is not begun, because the mount is known not to answer or the
    // waiter must not wait; 7 without a thread.
    template <typename Result>
    Result run(const SlowMount& mount, Requests requests, std::function<Result()> work) {
        auto task = std::make_shared<std::packaged_task<Result()>>(std::move(work));
        std::future<Result> result = task->get_future();
        carryOut(mount, requests, [task = std::move(task)] { (*task)(); });
        return result.get();
    }
    // Gives up what lies on the mount, on another thread: after the call that is under way there, if there is
    // one, and in the order of the calls of this.
    void letGo(const SlowMount& mount, std::shared_ptr<void> resource) noexcept;

private:
    class Call;

    bool mayBegin(const SlowMount& mount);
    void carryOut(const SlowMount& mount, Requests requests, std::function<void()> work);
    bool returnsInTime(const SlowMount& mount, Requests requests, const std::shared_ptr<Call>& call);

    Waiter& m_waiter;
    const MountDeadlines m_deadlines;
    std::map<std::string, std::shared_ptr<Call>> m_underWay; // by mount; also those that were left behind
};

} // namespace share
