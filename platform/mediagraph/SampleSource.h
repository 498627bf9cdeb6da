// SPDX-FileCopyrightText: 2026 The qmClient authors
// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once
// The first element of a pipeline: hands out the samples of a message from one frame on, as a stream that
// begins at 0. Made on the playing thread; GStreamer's own threads take the samples, which live as long as
// any of them needs them.

#include "platform/mediagraph/GstRef.h"
#include "platform/mediagraph/Samples.h"

#include <gst/app/gstappsrc.h>

#include <atomic>
#include <cstddef>
#include <memory>

namespace mediagraph {

// The first frame that was not handed out yet. Handing out is never more than half a second ahead of what the
// device takes.
using NextFrame = std::shared_ptr<std::atomic<std::size_t>>;

// A new, floating element that begins at `next` and moves it. Error 51 when GStreamer lacks it.
GstElement* newSampleSource(std::shared_ptr<const Samples> samples, NextFrame next);

} // namespace mediagraph
