// SPDX-FileCopyrightText: 2026 The qmClient authors
// SPDX-License-Identifier: GPL-3.0-or-later
#include "platform/share/MountCalls.h"

#include "platform/basic/DetachedThread.h"
#include "platform/share/FileDescriptor.h"

#include <sys/eventfd.h>
#include <sys/statvfs.h>

#include <cerrno>
#include <mutex>
#include <vector>

namespace share {

// One call, shared by its thread and whoever waits for it or follows it.
class MountCalls::Call {
public:
    static std::shared_ptr<Call> begin(std::function<void()> work) {
        auto call = std::make_shared<Call>();
        basic::startDetached([call, work = std::move(work)]() mutable {
            work();
            work = nullptr;
            call->finish();
        });
        return call;
    }

    Call() : m_returned(::eventfd(0, EFD_CLOEXEC | EFD_NONBLOCK)) {
        if (!m_returned.isOpen())
            throw basic::errorFromErrno(errno, "wait", "for a mounted folder");
    }

    // Readable when nothing is left of the call.
    int returned() const noexcept { return m_returned.get(); }
    bool isOver() {
        const std::scoped_lock lock(m_mutex);
        return m_isOver;
    }
    // Takes over what is to be given up after the call; false when it has returned.
    bool take(std::shared_ptr<void>& resource) {
        const std::scoped_lock lock(m_mutex);
        if (!m_isOver)
            m_leftovers.push_back(std::move(resource));
        return !m_isOver;
    }

private:
    void finish() {
        for (;;) {
            std::vector<std::shared_ptr<void>> leftovers;
            {
                const std::scoped_lock lock(m_mutex);
                leftovers.swap(m_leftovers);
                m_isOver = leftovers.empty();
            }
            if (leftovers.empty())
                break;
            for (std::shared_ptr<void>& resource : leftovers)
                resource.reset();
        }
        ::eventfd_write(m_returned.get(), 1);
    }

    FileDescriptor m_returned;
    std::mutex m_mutex;
    bool m_isOver = false;
    std::vector<std::shared_ptr<void>> m_leftovers; // in the order of their giving up
};

void MountCalls::reach(const SlowMount& mount) {
    run<void>(mount, Requests::Few, [mountPoint = mount.mountPoint] {
        struct statvfs size {};
        static_cast<void>(::statvfs(mountPoint.c_str(), &size));
    });
}

void MountCalls::letGo(const SlowMount& mount, std::shared_ptr<void> resource) noexcept {
    try {
        const auto underWay = m_underWay.find(mount.id);
        if (underWay != m_underWay.end() && underWay->second->take(resource))
            return;
        returnsInTime(mount, Requests::Many,
                      Call::begin([resource = std::move(resource)]() mutable { resource.reset(); }));
    } catch (const std::exception&) { // no thread: it was given up right here
    }
}

bool MountCalls::mayBegin(const SlowMount& mount) {
    const auto underWay = m_underWay.find(mount.id);
    if (underWay != m_underWay.end() && underWay->second->isOver())
        m_underWay.erase(underWay);
    return m_waiter.mayWait() && !m_underWay.contains(mount.id);
}

void MountCalls::carryOut(const SlowMount& mount, Requests requests, std::function<void()> work) {
    const std::string silence = "the mounted folder " + mount.mountPoint + " does not answer";
    if (!mayBegin(mount))
        throw basic::RuntimeError(basic::kPathNotFound, silence);
    if (!returnsInTime(mount, requests, Call::begin(std::move(work))))
        throw CallLeftBehind(silence);
}

bool MountCalls::returnsInTime(const SlowMount& mount, Requests requests, const std::shared_ptr<Call>& call) {
    m_underWay[mount.id] = call;
    const auto atMost = requests == Requests::Many ? m_deadlines.many : m_deadlines.few;
    if (!m_waiter.mayWait() || m_waiter.untilReadable(call->returned(), atMost) != Waited::Ready)
        return false;
    m_underWay.erase(mount.id);
    return true;
}

} // namespace share
