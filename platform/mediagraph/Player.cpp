// SPDX-FileCopyrightText: 2026 The qmClient authors
// SPDX-License-Identifier: GPL-3.0-or-later
#include "platform/mediagraph/Player.h"

#include "platform/mediagraph/PipeWireSocket.h"
#include "platform/mediagraph/PulseServer.h"

#include <utility>

namespace mediagraph {
namespace {

// How often the position is taken while the message plays: as often as the engine asks for it.
constexpr std::chrono::milliseconds kBeat{25};
// The end of a stream is the moment at which the sink believes the last sample to be heard. Its clock is an
// estimate; closing the device right then has cut the last tenth of a second off.
constexpr std::chrono::milliseconds kLinger{200};

// A sound server that hangs takes no samples and tells nobody. The sink's clock then stands still, or runs on
// without any sound.
constexpr std::chrono::seconds kStandstill{3};

} // namespace

bool Player::step(const PlayOrder& order) {
    try {
        if (order.state == PlayState::Playing)
            play(order);
        else
            rest(order);
    } catch (const basic::RuntimeError& error) {
        m_task.desk->failed(order, error); // first, because letting go may hang
        m_pipeline.reset();
    }
    return m_pipeline || !order.isLeaving;
}

std::optional<std::chrono::milliseconds> Player::idleTime() const {
    if (!m_pipeline)
        return std::nullopt;
    return kBeat;
}

void Player::play(const PlayOrder& order) {
    const bool isOver = m_ended && m_endedOrder != order.number;
    if (!m_pipeline || m_seekNumber != order.seekNumber || isOver)
        open(order);
    listen(order);
    if (m_pipeline)
        look(order);
}

void Player::open(const PlayOrder& order) {
    m_pipeline.reset();
    m_ended.reset();
    m_playsAt.clear();
    m_moved = Clock::now();
    m_seekNumber = order.seekNumber;
    m_pipeline.emplace(m_task.samples, order.position, m_task.device, [desk = m_task.desk] { desk->wake(); });
    m_pipeline->start();
}

void Player::listen(const PlayOrder& order) {
    while (m_pipeline) {
        const auto message = m_pipeline->message();
        if (!message)
            return;
        if (GST_MESSAGE_TYPE(message.get()) == GST_MESSAGE_ERROR) {
            reportError(order, message.get());
        } else if (GST_MESSAGE_TYPE(message.get()) == GST_MESSAGE_EOS) {
            m_ended = Clock::now();
            m_endedOrder = order.number;
            m_task.desk->ended(order, EventCode::Complete);
        }
    }
}

void Player::look(const PlayOrder& order) {
    if (!m_pipeline->isPlaying())
        return;
    if (const auto position = m_pipeline->position()) {
        m_task.desk->moved(order, *position);
        watchMovement(*position);
    }
    if (m_pipeline->isDropping())
        loseDevice(order);
    else
        watchDevice(order);
}

void Player::watchMovement(double position) {
    const auto now = Clock::now();
    const bool isAhead =
        position > m_pipeline->handedOut() + std::chrono::duration<double>(kStandstill).count();
    if (std::exchange(m_position, position) != position || m_ended)
        m_moved = now;
    if (!m_ended && (isAhead || now - m_moved > kStandstill))
        throw basic::RuntimeError(basic::kMediaTimeout, "The sound server stopped playing.");
}

// The sound server moves what plays at a device that is unplugged to another one.
void Player::watchDevice(const PlayOrder& order) {
    if (!m_pipeline->mayHaveMoved())
        return;
    std::string now = m_pipeline->currentDevice();
    if (now == m_playsAt)
        return;
    if (isDeviceGone()) {
        m_task.desk->ended(order, EventCode::UserAbort);
        m_pipeline.reset();
    }
    m_playsAt = std::move(now);
}

// PipeWire's own sink tells nothing of it.
void Player::loseDevice(const PlayOrder& order) {
    if (!PipeWireSocket::ofUser().answers())
        throw basic::RuntimeError(basic::kMediaNoHardware, "The sound server went away.");
    m_task.desk->ended(order, EventCode::UserAbort);
    m_pipeline.reset();
}

// Silent from here on: the place is kept to the sample.
void Player::rest(const PlayOrder& order) {
    if (isLingering())
        return;
    if (m_pipeline && !m_ended && m_seekNumber == order.seekNumber) {
        if (const auto position = m_pipeline->position())
            m_task.desk->moved(order, *position);
    }
    m_pipeline.reset();
    m_ended.reset();
}

// The server ends a stream whose device went away and has nowhere to move it to: that is no failure.
void Player::reportError(const PlayOrder& order, GstMessage* message) {
    GError* raw = nullptr;
    gst_message_parse_error(message, &raw, nullptr);
    const GstRef<GError> error(raw);
    if (isDeviceGone()) {
        m_task.desk->ended(order, EventCode::UserAbort);
        m_pipeline.reset();
        return;
    }
    std::string text("Playing at '");
    text.append(m_task.device.name).append("' failed: ").append(error->message);
    throw basic::RuntimeError(basic::kMediaNoHardware, text);
}

// Also for the desktop's default: when the device it stood for is unplugged, the message does not go on
// aloud at another one.
bool Player::isDeviceGone() const {
    if (m_task.device.element != "pulsesink" || m_playsAt.empty())
        return false;
    return PulseServer().hasSink(m_playsAt) == std::optional(false);
}

bool Player::isLingering() const {
    const bool isExclusive = m_task.device.element == "alsasink"; // the next message needs the device at once
    return m_pipeline && m_ended && !isExclusive && Clock::now() - *m_ended < kLinger;
}

} // namespace mediagraph
