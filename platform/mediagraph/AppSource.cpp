// SPDX-FileCopyrightText: 2026 The qmClient authors
// SPDX-License-Identifier: GPL-3.0-or-later
#include "platform/mediagraph/AppSource.h"

#include "platform/basic/RuntimeError.h"
#include "platform/mediagraph/GstRef.h"

#include <gst/audio/audio.h>

namespace mediagraph {
namespace {

GstRef<GstCaps> capsOf(const Samples& samples) {
    GstAudioInfo info;
    gst_audio_info_set_format(&info, GST_AUDIO_FORMAT_S16, static_cast<gint>(samples.rate),
                              static_cast<gint>(samples.channels), nullptr);
    return GstRef<GstCaps>(gst_audio_info_to_caps(&info));
}

} // namespace

GstElement* newAppSource(const Samples& samples, std::size_t framesAhead, std::unique_ptr<Feed> feed) {
    GstElement* element = gst_element_factory_make("appsrc", nullptr);
    if (element == nullptr)
        throw basic::RuntimeError(basic::kInternalError, "GStreamer has no element appsrc.");
    auto* source = GST_APP_SRC(element);
    gst_app_src_set_caps(source, capsOf(samples).get());
    gst_app_src_set_max_bytes(source, framesAhead * frameSize(samples));
    g_object_set(element, "format", GST_FORMAT_TIME, nullptr);
    GstAppSrcCallbacks callbacks{};
    callbacks.need_data = [](GstAppSrc* from, guint, gpointer user) {
        static_cast<Feed*>(user)->needData(from);
    };
    gst_app_src_set_callbacks(source, &callbacks, feed.release(),
                              [](gpointer user) { std::default_delete<Feed>()(static_cast<Feed*>(user)); });
    return element;
}

} // namespace mediagraph
