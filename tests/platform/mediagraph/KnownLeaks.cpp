// SPDX-FileCopyrightText: 2026 The qmClient authors
// SPDX-License-Identifier: GPL-3.0-or-later
//
// What the leak sanitizer is not to count: GStreamer's PipeWire plug-in of Debian 12 forgets some 300 bytes
// of its buffers' settings at every start. Libraries without frame pointers need the slow way through the
// stack.

extern "C" const char* __asan_default_options();
extern "C" const char* __asan_default_options() {
    return "fast_unwind_on_malloc=0";
}

extern "C" const char* __lsan_default_suppressions();
extern "C" const char* __lsan_default_suppressions() {
    return "leak:libgstpipewire.so\n";
}
