// SPDX-FileCopyrightText: 2026 The qmClient authors
// SPDX-License-Identifier: GPL-3.0-or-later
#include "platform/share/MountCalls.h"

#include "platform/basic/DetachedThread.h"
#include "platform/basic/RuntimeError.h"

#include <sys/eventfd.h>
#include <sys/statvfs.h>

#include <cerrno>

namespace share {
namespace {

// True for as long as it lives.
class SetFor {
public:
    explicit SetFor(bool& flag) : m_flag(flag) { m_flag = true; }
    SetFor(const SetFor&) = delete;
    SetFor& operator=(const SetFor&) = delete;
    ~SetFor() { m_flag = false; }

private:
    bool& m_flag;
};

} // namespace

void MountCalls::reach(const std::string& mountPoint) {
    run<void>(mountPoint, Requests::Few, [mountPoint] {
        struct statvfs size {};
        if (::statvfs(mountPoint.c_str(), &size) != 0)
            throw basic::RuntimeError(basic::kPathNotFound,
                                      basic::errorFromErrno(errno, "reach", mountPoint).description());
    });
}

void MountCalls::letGo(const std::string& mountPoint, std::shared_ptr<void> resource) noexcept {
    try {
        const Signal returned = start([resource = std::move(resource)]() mutable { resource.reset(); });
        if (mayAnswer(mountPoint))
            isOver(mountPoint, Requests::Few, returned);
    } catch (const std::exception&) { // no thread: it was given up right here
    }
}

bool MountCalls::mayAnswer(const std::string& mountPoint) {
    if (m_isWaiting)
        return false;
    const auto leftBehind = m_leftBehind.find(mountPoint);
    if (leftBehind == m_leftBehind.end())
        return true;
    eventfd_t returned = 0;
    if (::eventfd_read(leftBehind->second->get(), &returned) != 0)
        return false;
    m_leftBehind.erase(leftBehind);
    return true;
}

void MountCalls::carryOut(const std::string& mountPoint, Requests requests, std::function<void()> call) {
    if (!mayAnswer(mountPoint) || !isOver(mountPoint, requests, start(std::move(call))))
        throw basic::RuntimeError(basic::kPathNotFound,
                                  "the mounted folder " + mountPoint + " does not answer");
}

// The signal comes when nothing is left of the call.
MountCalls::Signal MountCalls::start(std::function<void()> call) {
    const auto returned = std::make_shared<FileDescriptor>(::eventfd(0, EFD_CLOEXEC | EFD_NONBLOCK));
    if (!returned->isOpen())
        throw basic::errorFromErrno(errno, "wait", "for a mounted folder");
    basic::startDetached([returned, call = std::move(call)]() mutable {
        call();
        call = nullptr;
        ::eventfd_write(returned->get(), 1);
    });
    return returned;
}

bool MountCalls::isOver(const std::string& mountPoint, Requests requests, const Signal& returned) {
    const auto atMost = requests == Requests::Many ? m_deadlines.many : m_deadlines.few;
    const SetFor waiting(m_isWaiting);
    const Waited waited = m_waiter.untilReadable(returned->get(), atMost);
    if (waited == Waited::TimeOver)
        m_leftBehind[mountPoint] = returned;
    return waited == Waited::Ready;
}

} // namespace share
