// SPDX-FileCopyrightText: 2026 The qmClient authors
// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once
// The source for sinks that take samples as soon as they are there and play them when their device runs.
// Nothing is copied: the samples live as long as GStreamer needs them.

#include "platform/mediagraph/AppSource.h"

namespace mediagraph {

// Begins at what `progress` says was handed out. Handing out is never more than half a second ahead of what
// the device takes.
GstElement* newSampleSource(SharedSamples samples, SharedProgress progress);

} // namespace mediagraph
