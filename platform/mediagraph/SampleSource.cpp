// SPDX-FileCopyrightText: 2026 The qmClient authors
// SPDX-License-Identifier: GPL-3.0-or-later
#include "platform/mediagraph/SampleSource.h"

#include <algorithm>
#include <utility>

namespace mediagraph {
namespace {

// Frames of a quarter of a second.
std::size_t pieceOf(const Samples& samples) {
    return std::max<std::size_t>(samples.rate / 4, 1);
}

// The samples themselves are handed on, not a copy of them; each buffer holds a share.
GstBuffer* bufferOf(const SharedSamples& samples, std::size_t first, std::size_t frames) {
    const auto* data = samples->values.data();
    GstMemory* memory =
        gst_memory_new_wrapped(GST_MEMORY_FLAG_READONLY, const_cast<std::int16_t*>(data),
                               samples->values.size() * sizeof(std::int16_t), first * frameSize(*samples),
                               frames * frameSize(*samples), new SharedSamples(samples), [](gpointer share) {
                                   std::default_delete<SharedSamples>()(static_cast<SharedSamples*>(share));
                               });
    GstBuffer* buffer = gst_buffer_new();
    gst_buffer_append_memory(buffer, memory);
    return buffer;
}

class SampleFeed final : public Feed {
public:
    SampleFeed(SharedSamples samples, SharedProgress progress)
        : m_samples(std::move(samples)), m_first(progress->handedOut), m_progress(std::move(progress)) {}

    void needData(GstAppSrc* source) override {
        const std::size_t at = m_progress->handedOut;
        const std::size_t frames =
            std::min(pieceOf(*m_samples), m_samples->frames() - std::min(at, m_samples->frames()));
        if (frames == 0) {
            gst_app_src_end_of_stream(source);
            return;
        }
        GstBuffer* buffer = bufferOf(m_samples, at, frames);
        GST_BUFFER_PTS(buffer) = timeOf(*m_samples, at - m_first);
        GST_BUFFER_DURATION(buffer) = timeOf(*m_samples, at - m_first + frames) - GST_BUFFER_PTS(buffer);
        m_progress->handedOut = at + frames;
        gst_app_src_push_buffer(source, buffer);
    }

private:
    SharedSamples m_samples;
    std::size_t m_first; // frame, which is played at time 0
    SharedProgress m_progress;
};

} // namespace

GstElement* newSampleSource(SharedSamples samples, SharedProgress progress) {
    auto feed = std::make_unique<SampleFeed>(samples, std::move(progress));
    return newAppSource(*samples, pieceOf(*samples), std::move(feed));
}

} // namespace mediagraph
