// SPDX-FileCopyrightText: 2026 The qmClient authors
// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once
// The first element of a pipeline: hands out the samples of a message, as a stream that begins at 0. Made on
// the playing thread; GStreamer's own threads take the samples. What both know of each other is the progress.

#include "platform/mediagraph/Samples.h"

#include <gst/app/gstappsrc.h>

#include <atomic>
#include <cstddef>
#include <memory>

namespace mediagraph {

struct FeedingProgress {
    explicit FeedingProgress(std::size_t first) : handedOut(first) {}

    // The first frame that was not handed out yet.
    std::atomic<std::size_t> handedOut;
    // The stream's time at which the first frame plays; GST_CLOCK_TIME_NONE while that is not known.
    std::atomic<GstClockTime> begin = 0;
    // The sink throws away what it is given.
    std::atomic<bool> isDropped = false;
};
using SharedProgress = std::shared_ptr<FeedingProgress>;
using SharedSamples = std::shared_ptr<const Samples>;

// Owned by the element, and used by its streaming thread.
class Feed {
public:
    Feed() = default;
    Feed(const Feed&) = delete;
    Feed& operator=(const Feed&) = delete;
    virtual ~Feed() = default;

    // Pushes the next buffer, or the end of the stream.
    virtual void needData(GstAppSrc* source) = 0;
};

// When a frame is due that comes `frames` after the first.
inline GstClockTime timeOf(const Samples& samples, std::size_t frames) {
    return gst_util_uint64_scale_int(frames, GST_SECOND, static_cast<gint>(samples.rate));
}

inline std::size_t frameSize(const Samples& samples) {
    return samples.channels * sizeof(std::int16_t);
}

// A new, floating element for sound of this kind, which asks for more when it holds less than `framesAhead`.
// Error 51 when GStreamer lacks it.
GstElement* newAppSource(const Samples& samples, std::size_t framesAhead, std::unique_ptr<Feed> feed);

} // namespace mediagraph
