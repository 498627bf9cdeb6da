// SPDX-FileCopyrightText: 2026 The qmClient authors
// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once
// The source for PipeWire's own sink, which throws away what it is given before its stream runs, and whose
// clock is not the device's: silence is handed out until the sink reads a piece of it, and only then the
// message, a little ahead of its time. What counts as handed out was read by the sink; it also
// throws away what comes when it has lost its device.

#include "platform/mediagraph/AppSource.h"

namespace mediagraph {

// Begins at what `progress` says was handed out, and tells there when the sound begins.
GstElement* newLedInSource(SharedSamples samples, SharedProgress progress);

} // namespace mediagraph
