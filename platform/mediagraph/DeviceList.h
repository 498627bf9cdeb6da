// SPDX-FileCopyrightText: 2026 The qmClient authors
// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once
// The output devices of this workstation, from the first of several sources that answers: the PulseAudio
// server, PipeWire without its PulseAudio face, the sound cards themselves. Names are cut to what the
// platform's device record holds and made unique, because playing finds its device by the name. Any thread,
// one at a time.

#include "platform/mediagraph/OutputDevice.h"
#include "platform/mediagraph/PipeWireSocket.h"

#include <functional>
#include <optional>
#include <string>
#include <string_view>
#include <vector>

namespace mediagraph {

class DeviceList {
public:
    // Nothing: this source is not there; empty: it is, and has no device.
    using Source = std::function<std::optional<std::vector<OutputDevice>>()>;

    // What the desktop's own choice is called.
    static constexpr const char* kDefaultName = "Default Audio Device";
    static constexpr std::size_t kMaximumName = 31; // bytes

    explicit DeviceList(std::vector<Source> sources) : m_sources(std::move(sources)) {}
    // With the real sources.
    static DeviceList ofWorkstation();

    // The desktop's default first, then each device; empty without any. Bounded by the sources' own limits.
    std::vector<OutputDevice> look() const;

    static std::optional<std::vector<OutputDevice>> fromPulse();
    static std::optional<std::vector<OutputDevice>> fromPipeWire(const PipeWireSocket& socket);
    // `text` is that of /proc/asound/pcm, one line for each device of a sound card.
    static std::optional<std::vector<OutputDevice>> fromSoundCards(std::string_view text);

private:
    std::vector<Source> m_sources;
};

// Cuts to DeviceList::kMaximumName bytes at a whole character and numbers what would be there twice.
void makeNamesUnique(std::vector<OutputDevice>& devices);

} // namespace mediagraph
