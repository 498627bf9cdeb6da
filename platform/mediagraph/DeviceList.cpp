// SPDX-FileCopyrightText: 2026 The qmClient authors
// SPDX-License-Identifier: GPL-3.0-or-later
#include "platform/mediagraph/DeviceList.h"

#include "platform/basic/TextCompare.h"
#include "platform/basic/Utf8.h"
#include "platform/mediagraph/PulseServer.h"

#include <algorithm>
#include <charconv>
#include <fstream>
#include <iterator>

namespace mediagraph {
namespace {

using Devices = std::vector<OutputDevice>;

std::string cut(std::string_view text, std::size_t length) {
    std::size_t end = 0;
    while (end < text.size()) {
        const std::size_t next = end + basic::utf8At(text, end).length;
        if (next > length)
            break;
        end = next;
    }
    return std::string(text.substr(0, end));
}

bool isTaken(const Devices& devices, std::size_t count, std::string_view name) {
    const auto end = devices.begin() + static_cast<std::ptrdiff_t>(count);
    return std::any_of(devices.begin(), end,
                       [name](const OutputDevice& device) { return basic::equalText(device.name, name); });
}

// "Headset", "Headset 2", "Headset 3"; a long name gives way to its number.
std::string freeName(const Devices& devices, std::size_t index) {
    const std::string& wanted = devices[index].name;
    std::string name = cut(wanted, DeviceList::kMaximumName);
    for (int number = 2; name.empty() || isTaken(devices, index, name); ++number) {
        std::string ending(1, ' ');
        ending.append(std::to_string(number));
        name = cut(wanted, DeviceList::kMaximumName - ending.size()).append(ending);
    }
    return name;
}

OutputDevice defaultOf(const char* element) {
    return {DeviceList::kDefaultName, element, ""};
}

std::string contentOf(const char* path) {
    std::ifstream file(path);
    return {std::istreambuf_iterator<char>(file), {}};
}

std::string_view trimmed(std::string_view text) {
    while (!text.empty() && text.front() == ' ')
        text.remove_prefix(1);
    while (!text.empty() && text.back() == ' ')
        text.remove_suffix(1);
    return text;
}

// "00-03: HDMI 0 : HDMI 0 : playback 1": card and device, the driver's name, its own one, what it can.
std::optional<OutputDevice> soundCardDevice(std::string_view line) {
    int card = 0;
    int device = 0;
    const bool isDevice = line.size() > 7 && line[2] == '-' && line[5] == ':';
    if (!isDevice || line.find(": playback ") == std::string_view::npos)
        return std::nullopt;
    std::from_chars(line.data(), line.data() + 2, card);
    std::from_chars(line.data() + 3, line.data() + 5, device);
    const std::string_view rest = line.substr(6);
    std::string address("plughw:");
    address.append(std::to_string(card)).append(",").append(std::to_string(device));
    return OutputDevice{std::string(trimmed(rest.substr(0, rest.find(" : ")))), "alsasink", address};
}

} // namespace

void makeNamesUnique(std::vector<OutputDevice>& devices) {
    for (std::size_t i = 0; i < devices.size(); ++i)
        devices[i].name = freeName(devices, i);
}

std::optional<std::vector<OutputDevice>> DeviceList::fromPulse() {
    const auto sinks = PulseServer().sinks();
    if (!sinks)
        return std::nullopt;
    Devices devices;
    if (!sinks->empty())
        devices.push_back(defaultOf("pulsesink"));
    for (const PulseSink& sink : *sinks)
        devices.push_back({sink.description, "pulsesink", sink.name});
    return devices;
}

std::optional<std::vector<OutputDevice>> DeviceList::fromPipeWire(const PipeWireSocket& socket) {
    if (!socket.answers())
        return std::nullopt;
    return Devices{defaultOf("pipewiresink")};
}

std::optional<std::vector<OutputDevice>> DeviceList::fromSoundCards(std::string_view text) {
    Devices devices{defaultOf("alsasink")};
    while (!text.empty()) {
        const std::size_t end = std::min(text.find('\n'), text.size());
        if (auto device = soundCardDevice(text.substr(0, end)))
            devices.push_back(std::move(*device));
        text.remove_prefix(std::min(end + 1, text.size()));
    }
    if (devices.size() == 1)
        return std::nullopt;
    return devices;
}

DeviceList DeviceList::ofWorkstation() {
    return DeviceList({fromPulse, [] { return fromPipeWire(PipeWireSocket::ofUser()); },
                       [] { return fromSoundCards(contentOf("/proc/asound/pcm")); }});
}

std::vector<OutputDevice> DeviceList::look() const {
    for (const Source& source : m_sources) {
        if (auto devices = source()) {
            makeNamesUnique(*devices);
            return std::move(*devices);
        }
    }
    return {};
}

} // namespace mediagraph
