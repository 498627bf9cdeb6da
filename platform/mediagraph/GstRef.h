// SPDX-FileCopyrightText: 2026 The qmClient authors
// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once
// Owners of GStreamer's objects: each gives back its one reference.

#include <gst/gst.h>

#include <memory>

namespace mediagraph {

struct GstUnref {
    void operator()(void* object) const noexcept { gst_object_unref(object); }
    void operator()(GstMessage* message) const noexcept { gst_message_unref(message); }
    void operator()(GstCaps* caps) const noexcept { gst_caps_unref(caps); }
    void operator()(GstStructure* structure) const noexcept { gst_structure_free(structure); }
    void operator()(GError* error) const noexcept { g_error_free(error); }
    void operator()(gchar* text) const noexcept { g_free(text); }
};

// For everything that has a reference to give back: GstElement, GstBus, GstPad, GstMessage, GstCaps.
template <typename Object>
using GstRef = std::unique_ptr<Object, GstUnref>;

} // namespace mediagraph
