// SPDX-FileCopyrightText: 2026 The qmClient authors
// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once
// A bounded look at the PulseAudio server (or at PipeWire, which answers the same questions). It opens a
// connection of its own, asks, and closes it; it never starts a server. It asks libpulse and not GStreamer's
// device monitor, because that would load GStreamer with all its plug-ins for a list of names. Any thread,
// one at a time.

#include <chrono>
#include <optional>
#include <string>
#include <string_view>
#include <vector>

namespace mediagraph {

struct PulseSink {
    std::string name;
    std::string description;
};

class PulseServer {
public:
    static constexpr std::chrono::milliseconds kLimit{500};

    explicit PulseServer(std::chrono::milliseconds limit = kLimit) : m_limit(limit) {}

    // The sinks in the server's order, without the dummy that stands in when there is no hardware. Nothing
    // when no server answers in time.
    std::optional<std::vector<PulseSink>> sinks() const;
    // Whether there is a sink of this name; nothing when no server answers in time.
    std::optional<bool> hasSink(std::string_view name) const;

private:
    std::chrono::milliseconds m_limit;
};

} // namespace mediagraph
