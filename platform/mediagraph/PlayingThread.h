// SPDX-FileCopyrightText: 2026 The qmClient authors
// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once
// The playing thread of one connected graph: reads orders from the desk, drives the pipeline, tells what
// happens. It owns all that is GStreamer's, because any call of it may hang in the sound server. It ends by
// itself after an order to leave; nobody joins it. GStreamer is started here, by the first of them.

#include "platform/mediagraph/OutputDevice.h"
#include "platform/mediagraph/Playback.h"
#include "platform/mediagraph/Samples.h"
#include "platform/mediagraph/ThreadCount.h"

#include <memory>

namespace mediagraph {

struct PlayingTask {
    std::shared_ptr<Playback> desk;
    std::shared_ptr<const Samples> samples;
    OutputDevice device;
};

// Error 7 when there is no thread to be had.
void startPlayingThread(PlayingTask task, std::shared_ptr<ThreadCount> count);

} // namespace mediagraph
