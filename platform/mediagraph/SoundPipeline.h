// SPDX-FileCopyrightText: 2026 The qmClient authors
// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once
// The GStreamer pipeline that plays one message at one device from one place on, once: the samples,
// conversion to what the device wants, the device's own sink. It is never paused or sent elsewhere; for that
// one makes another. Flushing or corking a stream makes the sound server's clock jump now and then, and the
// sink's clock then stands still for good. Every call may block as long as the sound server pleases; so it
// belongs to a playing thread, which makes, uses and destroys it. Nobody reads its messages once it is
// destroyed.

#include "platform/mediagraph/AppSource.h"
#include "platform/mediagraph/GstRef.h"
#include "platform/mediagraph/OutputDevice.h"
#include "platform/mediagraph/Samples.h"

#include <atomic>
#include <functional>
#include <memory>
#include <optional>
#include <string>

namespace mediagraph {

class SoundPipeline {
public:
    // `messageCame` is called from any thread whenever the bus has something, at the worst also after the
    // pipeline is gone; so it owns what it touches. Error kMediaNoHardware when GStreamer lacks the device's
    // sink.
    SoundPipeline(std::shared_ptr<const Samples> samples, double fromSeconds, const OutputDevice& device,
                  std::function<void()> messageCame);
    SoundPipeline(const SoundPipeline&) = delete;
    SoundPipeline& operator=(const SoundPipeline&) = delete;
    ~SoundPipeline();

    // Begins to play; failures come as messages.
    void start();
    bool isPlaying();
    // Seconds from the beginning of the message; nothing before the sound begins.
    std::optional<double> position();
    // How far the samples were handed out for playing, in the same seconds.
    double handedOut() const;
    // Whether the sink throws away what it is given: it has lost its device, or the server.
    bool isDropping() const { return m_progress->isDropped; }
    // The next message, if there is one.
    GstRef<GstMessage> message();
    // Whether the sink may play somewhere else than at the last question; true at first.
    bool mayHaveMoved() { return m_mayHaveMoved->exchange(false); }
    // Where the sink plays at this moment, by the sound server's name; empty where it does not tell. Asks the
    // server each time.
    std::string currentDevice() const;

private:
    GstElement* add(GstElement* element);
    void addSource(std::shared_ptr<const Samples> samples, const OutputDevice& device);

    double m_from;
    double m_rate;
    SharedProgress m_progress;
    std::shared_ptr<std::atomic<bool>> m_mayHaveMoved = std::make_shared<std::atomic<bool>>(true);
    GstRef<GstElement> m_pipeline;
    GstElement* m_sink; // owned by the pipeline
    GstRef<GstBus> m_bus;
};

} // namespace mediagraph
