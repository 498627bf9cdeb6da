// SPDX-FileCopyrightText: 2026 The qmClient authors
// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once
// Memory of GStreamer's that tells when somebody reads it: the only way to learn whether a sink took a buffer
// or threw it away. The bytes are not copied.

#include <gst/gst.h>

#include <cstddef>
#include <functional>
#include <span>

namespace mediagraph {

// `isRead` is called on the thread that reads, each time, and destroyed with the memory; whatever keeps the
// bytes alive belongs into it. Any thread, once GStreamer runs.
GstMemory* newWatchedMemory(std::span<const std::byte> bytes, std::function<void()> isRead);

} // namespace mediagraph
