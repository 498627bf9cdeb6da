// SPDX-FileCopyrightText: 2026 The qmClient authors
// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once
// Calls into mounted folders that a server or a program answers for. Such a call can hang for minutes, or for
// ever, and nothing ends it; so each is made on a thread of its own, and the caller waits as its waiter says.
// A call that does not return in its time is left behind: its thread goes on, and what it brings is thrown
// away. Until it returns, every further call into that mount fails at once, so that threads do not pile up
// there. One thread uses an object; the waiter must outlive it.

#include "platform/share/FileDescriptor.h"
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

class MountCalls {
public:
    enum class Requests { Few, Many };

    explicit MountCalls(Waiter& waiter, MountDeadlines deadlines = {})
        : m_waiter(waiter), m_deadlines(deadlines) {}

    // Asks the file system at `mountPoint` for its size, which is not answered from a cache. Error 76 when
    // there is no answer.
    void reach(const std::string& mountPoint);

    // What `work` answers or throws. It must own, or share, all it touches; nothing of it is left when this
    // returns. Error 76 when it is left behind, or not begun: because the mount is known not to answer, or
    // from inside of another call's wait. 7 without a thread.
    template <typename Result>
    Result run(const std::string& mountPoint, Requests requests, std::function<Result()> work) {
        auto task = std::make_shared<std::packaged_task<Result()>>(std::move(work));
        std::future<Result> result = task->get_future();
        carryOut(mountPoint, requests, [task = std::move(task)] { (*task)(); });
        return result.get();
    }
    // Gives up what lies on the mount, at the latest when it answers again.
    void letGo(const std::string& mountPoint, std::shared_ptr<void> resource) noexcept;

private:
    using Signal = std::shared_ptr<FileDescriptor>;

    bool mayAnswer(const std::string& mountPoint);
    void carryOut(const std::string& mountPoint, Requests requests, std::function<void()> call);
    static Signal start(std::function<void()> call);
    bool isOver(const std::string& mountPoint, Requests requests, const Signal& returned);

    Waiter& m_waiter;
    const MountDeadlines m_deadlines;
    bool m_isWaiting = false;
    std::map<std::string, Signal> m_leftBehind; // by mount point: what comes when the call returns
};

} // namespace share
