// SPDX-FileCopyrightText: 2026 The qmClient authors
// SPDX-License-Identifier: GPL-3.0-or-later
#include "platform/mediagraph/WatchedMemory.h"

#include <memory>
#include <utility>

namespace mediagraph {
namespace {

struct WatchedMemory {
    GstMemory memory; // first: GStreamer knows no more of it
    std::span<const std::byte> bytes;
    std::function<void()> isRead;
};

WatchedMemory* watched(GstMemory* memory) {
    return reinterpret_cast<WatchedMemory*>(memory);
}

gpointer map(GstMemory* memory, gsize, GstMapFlags) {
    const WatchedMemory& mapped = *watched(memory);
    mapped.isRead();
    return const_cast<std::byte*>(mapped.bytes.data());
}

void unmap(GstMemory*) {}

void release(GstAllocator*, GstMemory* memory) {
    const std::unique_ptr<WatchedMemory> owned(watched(memory));
}

void initialiseClass(gpointer type, gpointer) {
    static_cast<GstAllocatorClass*>(type)->free = release;
}

void initialise(GTypeInstance* instance, gpointer) {
    auto* allocator = reinterpret_cast<GstAllocator*>(instance);
    allocator->mem_type = "qm-watched";
    allocator->mem_map = map;
    allocator->mem_unmap = unmap;
    GST_OBJECT_FLAG_SET(allocator, GST_ALLOCATOR_FLAG_CUSTOM_ALLOC);
}

// GStreamer frees memory through the allocator that it came from.
GstAllocator* newAllocator() {
    const GType type = g_type_register_static_simple(
        GST_TYPE_ALLOCATOR, "QmWatchedMemory", sizeof(GstAllocatorClass), initialiseClass,
        sizeof(GstAllocator), initialise, static_cast<GTypeFlags>(0));
    return static_cast<GstAllocator*>(gst_object_ref_sink(g_object_new(type, nullptr)));
}

} // namespace

GstMemory* newWatchedMemory(std::span<const std::byte> bytes, std::function<void()> isRead) {
    static GstAllocator* const kAllocator = newAllocator(); // for ever: threads may outlast the program's end
    auto made = std::make_unique<WatchedMemory>(WatchedMemory{{}, bytes, std::move(isRead)});
    gst_memory_init(&made->memory, GST_MEMORY_FLAG_READONLY, kAllocator, nullptr, bytes.size(), 0, 0,
                    bytes.size());
    // Who wants a part of it gets a copy: the allocator has no way to share.
    GST_MINI_OBJECT_FLAG_SET(&made->memory, GST_MEMORY_FLAG_NO_SHARE);
    return &made.release()->memory;
}

} // namespace mediagraph
