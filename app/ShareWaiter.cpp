// SPDX-FileCopyrightText: 2026 The qmClient authors
// SPDX-License-Identifier: GPL-3.0-or-later
#include "app/ShareWaiter.h"

#include <QSocketNotifier>
#include <QTimer>

#include <poll.h>

#include <algorithm>
#include <thread>
#include <utility>

namespace app {
namespace {

using share::Waited;

enum LoopEnd { kReadable = 1, kTimeOver, kInputIsDue }; // anything else is the end of the program

bool isReadable(int descriptor, std::chrono::milliseconds atMost = {}) {
    pollfd watched{descriptor, POLLIN, 0};
    return ::poll(&watched, 1, static_cast<int>(atMost.count())) > 0;
}

} // namespace

Waited ShareWaiter::untilReadable(int descriptor, std::chrono::milliseconds atMost) {
    if (!mayWait())
        return Waited::Cancelled;
    if (isSoonReadable(descriptor, atMost))
        return Waited::Ready;
    return letEventsRun(descriptor, atMost);
}

// A list is loaded with many quick requests: an event loop for each would cost more than they do.
bool ShareWaiter::isSoonReadable(int descriptor, std::chrono::milliseconds atMost) {
    if (!m_sinceEvents.isValid())
        return false;
    const auto left = kPatience - std::chrono::milliseconds(m_sinceEvents.elapsed());
    if (left.count() <= 0)
        return false;
    return isReadable(descriptor, std::min(left, atMost));
}

Waited ShareWaiter::letEventsRun(int descriptor, std::chrono::milliseconds atMost) {
    QEventLoop loop;
    QSocketNotifier readable(descriptor, QSocketNotifier::Read);
    connect(&readable, &QSocketNotifier::activated, &loop, [&loop] { loop.exit(kReadable); });
    QTimer part;
    int parts = share::kPartsOfAWait;
    connect(&part, &QTimer::timeout, &loop, [&loop, &parts] {
        if (--parts <= 0)
            loop.exit(kTimeOver);
    });
    part.start(share::partOf(atMost));

    const int end = exec(loop);
    if (m_isEnded || (end != kReadable && end != kTimeOver))
        return Waited::Cancelled;
    return end == kReadable || isReadable(descriptor) ? Waited::Ready : Waited::TimeOver;
}

// Inside of another wait nothing may run.
bool ShareWaiter::pass(std::chrono::milliseconds time) {
    if (m_isEnded)
        return false;
    if (isWaiting()) {
        std::this_thread::sleep_for(time);
        return true;
    }
    QEventLoop loop;
    QTimer end;
    end.setTimerType(Qt::PreciseTimer);
    connect(&end, &QTimer::timeout, &loop, [&loop] { loop.exit(kTimeOver); });
    end.start(time);
    return exec(loop) == kTimeOver && !m_isEnded;
}

// An end that another one covers comes again: what it is about is still so.
int ShareWaiter::exec(QEventLoop& loop) {
    m_loop = &loop;
    if (!m_sinceInput.isValid())
        m_sinceInput.start();
    int end = execWithoutInput(loop);
    if (end == kInputIsDue && !m_isEnded)
        end = execHoldingInput(loop);
    m_loop = nullptr;
    m_sinceEvents.start();
    QMetaObject::invokeMethod(this, &ShareWaiter::settle, Qt::QueuedConnection);
    return end;
}

int ShareWaiter::execWithoutInput(QEventLoop& loop) {
    const auto left = kInputPatience - std::chrono::milliseconds(m_sinceInput.elapsed());
    if (left.count() <= 0)
        return kInputIsDue;
    QTimer due;
    connect(&due, &QTimer::timeout, &loop, [&loop] { loop.exit(kInputIsDue); });
    due.start(left);
    return loop.exec(QEventLoop::ExcludeUserInputEvents);
}

int ShareWaiter::execHoldingInput(QEventLoop& loop) {
    m_input.hold();
    const int end = loop.exec();
    m_input.stopHolding();
    return end;
}

// Runs from the event loop, for one thing of what came meanwhile: that may wait in its turn, and what comes
// after it waits with it. If it is the loop of another wait, the end of that wait calls again.
void ShareWaiter::settle() {
    if (isWaiting())
        return;
    m_sinceInput.invalidate();
    m_input.waitIsOver();
    if (m_later.empty() && m_input.isEmpty())
        return;
    QMetaObject::invokeMethod(this, &ShareWaiter::settle, Qt::QueuedConnection);
    if (m_later.empty())
        m_input.handOutNext();
    else
        runNext();
}

void ShareWaiter::afterWaiting(std::function<void()> work) {
    if (!isWaiting()) {
        work();
        return;
    }
    m_later.push_back(std::move(work));
}

void ShareWaiter::runNext() {
    const std::function<void()> work = std::move(m_later.front());
    m_later.pop_front();
    work();
}

void ShareWaiter::endWaits() {
    m_isEnded = true;
    m_later.clear();
    if (m_loop != nullptr)
        m_loop->exit();
}

} // namespace app
