// SPDX-FileCopyrightText: 2026 The qmClient authors
// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once
// One place to play at, as the device list knows it.

#include <string>

namespace mediagraph {

struct OutputDevice {
    std::string name;    // at most 31 bytes of UTF-8, unique in its list without case
    std::string element; // GStreamer's sink for it
    std::string address; // that sink's "device"; empty for the desktop's default, whatever it is
    bool operator==(const OutputDevice&) const = default;
};

} // namespace mediagraph
