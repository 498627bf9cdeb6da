// SPDX-FileCopyrightText: 2026 The qmClient authors
// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once
// The playback engine's ways through a file: a tenth of it at a time. Values are read anew for each use, for
// the graph goes on meanwhile. What the graph throws goes to the caller.

#include "platform/mediagraph/IMediaPosition.h"

namespace audio {

// A tenth on, while the result stays below the duration and a second. Nothing at position 0.
void stepForward(mediagraph::IMediaPosition& position);
// A tenth back; to the beginning when that leaves a second or less. Nothing at position 0.
void stepBackward(mediagraph::IMediaPosition& position);

// Takes a graph that is playing back to its beginning. False for the one case that is left alone: position
// and duration were a different whole second at the first look, the same at the second, and not 0.
bool rewindForRestart(mediagraph::IMediaPosition& position);

} // namespace audio
