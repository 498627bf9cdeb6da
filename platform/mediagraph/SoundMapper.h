// SPDX-FileCopyrightText: 2026 The qmClient authors
// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once
// The preferred playback device as the platform keeps it in the current user's settings. Where the value is
// absent the desktop's own choice answers for it: the first device of the list, which follows the desktop's
// default. Nothing is ever written. User-interface thread; the device list must outlive it.

#include <string>

namespace mediagraph {

class WaveOut;

class SoundMapper {
public:
    static constexpr const char* kKey = R"(Software\Microsoft\Multimedia\Sound Mapper)";
    static constexpr const char* kValue = "Playback";

    explicit SoundMapper(WaveOut& devices) : m_devices(devices) {}

    // `stored` is what the settings hold under kKey and kValue, empty where they hold nothing. Empty without
    // a device. Looks at the sound server only when `stored` is empty.
    std::string Playback(const std::string& stored);

private:
    WaveOut& m_devices;
};

} // namespace mediagraph
