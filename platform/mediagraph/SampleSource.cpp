// SPDX-FileCopyrightText: 2026 The qmClient authors
// SPDX-License-Identifier: GPL-3.0-or-later
#include "platform/mediagraph/SampleSource.h"

#include "platform/basic/RuntimeError.h"

#include <gst/audio/audio.h>

#include <algorithm>
#include <utility>

namespace mediagraph {
namespace {

using SharedSamples = std::shared_ptr<const Samples>;

// Frames of a quarter of a second.
std::size_t pieceOf(const Samples& samples) {
    return std::max<std::size_t>(samples.rate / 4, 1);
}

// Owned by the element, and used by its streaming thread.
struct Feed {
    SharedSamples samples;
    std::size_t first; // frame, which is played at time 0
    NextFrame next;

    GstClockTime timeOf(std::size_t frame) const {
        return gst_util_uint64_scale_int(frame - first, GST_SECOND, static_cast<gint>(samples->rate));
    }
};

// The samples themselves are handed on, not a copy of them; each buffer holds a share.
GstBuffer* bufferOf(const SharedSamples& samples, std::size_t first, std::size_t frames) {
    const std::size_t frameSize = samples->channels * sizeof(std::int16_t);
    const auto* data = samples->values.data();
    GstMemory* memory =
        gst_memory_new_wrapped(GST_MEMORY_FLAG_READONLY, const_cast<std::int16_t*>(data),
                               samples->values.size() * sizeof(std::int16_t), first * frameSize,
                               frames * frameSize, new SharedSamples(samples), [](gpointer share) {
                                   std::default_delete<SharedSamples>()(static_cast<SharedSamples*>(share));
                               });
    GstBuffer* buffer = gst_buffer_new();
    gst_buffer_append_memory(buffer, memory);
    return buffer;
}

void needData(GstAppSrc* source, guint, gpointer user) {
    Feed& from = *static_cast<Feed*>(user);
    const std::size_t first = *from.next;
    const std::size_t piece = pieceOf(*from.samples);
    const std::size_t frames =
        std::min(piece, from.samples->frames() - std::min(first, from.samples->frames()));
    if (frames == 0) {
        gst_app_src_end_of_stream(source);
        return;
    }
    GstBuffer* buffer = bufferOf(from.samples, first, frames);
    GST_BUFFER_PTS(buffer) = from.timeOf(first);
    GST_BUFFER_DURATION(buffer) = from.timeOf(first + frames) - from.timeOf(first);
    *from.next = first + frames;
    gst_app_src_push_buffer(source, buffer);
}

GstRef<GstCaps> capsOf(const Samples& samples) {
    GstAudioInfo info;
    gst_audio_info_set_format(&info, GST_AUDIO_FORMAT_S16, static_cast<gint>(samples.rate),
                              static_cast<gint>(samples.channels), nullptr);
    return GstRef<GstCaps>(gst_audio_info_to_caps(&info));
}

} // namespace

GstElement* newSampleSource(std::shared_ptr<const Samples> samples, NextFrame next) {
    GstElement* element = gst_element_factory_make("appsrc", nullptr);
    if (element == nullptr)
        throw basic::RuntimeError(basic::kInternalError, "GStreamer has no element appsrc.");
    auto* source = GST_APP_SRC(element);
    gst_app_src_set_caps(source, capsOf(*samples).get());
    gst_app_src_set_max_bytes(source, pieceOf(*samples) * samples->channels * sizeof(std::int16_t));
    g_object_set(element, "format", GST_FORMAT_TIME, nullptr);
    GstAppSrcCallbacks callbacks{};
    callbacks.need_data = needData;
    const std::size_t first = *next;
    auto* feed = new Feed{std::move(samples), first, std::move(next)};
    gst_app_src_set_callbacks(source, &callbacks, feed,
                              [](gpointer user) { std::default_delete<Feed>()(static_cast<Feed*>(user)); });
    return element;
}

} // namespace mediagraph
