// SPDX-FileCopyrightText: 2026 The qmClient authors
// SPDX-License-Identifier: GPL-3.0-or-later
#include "platform/mediagraph/Playback.h"

#include <algorithm>
#include <utility>

namespace mediagraph {

void Playback::change() {
    ++m_order.number;
    m_end.reset();
    m_failure.reset();
    m_changed.notify_all();
}

void Playback::want(PlayState state) {
    const std::lock_guard lock(m_mutex);
    if (state == PlayState::Playing && m_order.state == PlayState::Playing)
        return; // also at the end: it stays told
    m_hasStarted = false;
    beginPatience();
    m_order.state = state;
    m_order.position = m_position;
    change();
}

void Playback::seek(double seconds) {
    const std::lock_guard lock(m_mutex);
    m_position = std::clamp(seconds, 0.0, m_duration);
    m_order.position = m_position;
    ++m_order.seekNumber;
    change();
}

void Playback::leave() {
    const std::lock_guard lock(m_mutex);
    m_order.state = PlayState::Stopped;
    m_order.isLeaving = true;
    change();
}

double Playback::position() {
    const std::lock_guard lock(m_mutex);
    watchThread();
    if (m_failure)
        throw *std::exchange(m_failure, std::nullopt);
    return m_position;
}

EventCode Playback::waitForCompletion(std::chrono::milliseconds timeout) {
    std::unique_lock lock(m_mutex);
    if (!isOver() && m_order.state != PlayState::Playing && !m_failure)
        throw basic::RuntimeError(basic::kMediaWrongState);
    if (!m_changed.wait_for(lock, timeout, [this] { return isOver(); }))
        throw basic::RuntimeError(basic::kMediaStillRunning);
    return *m_end;
}

PlayOrder Playback::next(std::uint64_t seen, std::optional<std::chrono::milliseconds> timeout) {
    std::unique_lock lock(m_mutex);
    const auto isDue = [&] { return m_isAwake || m_order.number != seen; };
    if (timeout)
        m_changed.wait_for(lock, *timeout, isDue);
    else
        m_changed.wait(lock, isDue);
    m_isAwake = false;
    return m_order;
}

void Playback::moved(const PlayOrder& order, double seconds) {
    const std::lock_guard lock(m_mutex);
    if (!isNewest(order) || m_end)
        return;
    m_position = std::clamp(seconds, 0.0, m_duration);
    beginPatience();
    m_hasStarted = true;
}

void Playback::ended(const PlayOrder& order, EventCode code) {
    const std::lock_guard lock(m_mutex);
    if (!isNewest(order) || m_end)
        return;
    if (code == EventCode::Complete)
        m_position = m_duration;
    else
        stop();
    m_end = code;
    m_changed.notify_all();
}

void Playback::failed(const PlayOrder& order, basic::RuntimeError failure) {
    const std::lock_guard lock(m_mutex);
    if (isNewest(order) && !m_end)
        fail(std::move(failure));
}

void Playback::wake() {
    const std::lock_guard lock(m_mutex);
    m_isAwake = true;
    m_changed.notify_all();
}

// The playing thread may hang in the sound server, so the user-interface thread looks at the clock itself.
void Playback::watchThread() {
    if (m_order.state != PlayState::Playing || m_end || !m_patience.isOver(0, m_now()))
        return;
    fail(basic::RuntimeError(basic::kMediaTimeout, m_hasStarted
                                                       ? "The sound server stopped playing."
                                                       : "The sound did not start within five seconds."));
}

void Playback::fail(basic::RuntimeError failure) {
    stop();
    m_end = EventCode::ErrorAbort;
    m_failure = std::move(failure);
}

// What failed or lost its device stays stopped; only a new Run() tries again.
void Playback::stop() {
    m_order.state = PlayState::Stopped;
    m_order.position = m_position;
    change();
}

} // namespace mediagraph
