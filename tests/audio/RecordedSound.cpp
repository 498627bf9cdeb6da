// SPDX-FileCopyrightText: 2026 The qmClient authors
// SPDX-License-Identifier: GPL-3.0-or-later
#include "tests/audio/RecordedSound.h"

#include "platform/basic/RuntimeError.h"

#include <algorithm>
#include <sstream>
#include <utility>

namespace audio {
namespace {

using mediagraph::ItemCollection;
using mediagraph::PinDirection;

std::string number(double value) {
    std::ostringstream text;
    text << value;
    return text.str();
}

class Pin final : public mediagraph::IPinInfo {
public:
    Pin(RecordedSound& sound, std::string name, PinDirection direction)
        : m_sound(sound), m_name(std::move(name)), m_direction(direction) {}

    PinDirection Direction() const override {
        m_sound.called("Direction " + m_name);
        return m_direction;
    }
    void Connect(mediagraph::IPinInfo& other) override {
        m_sound.called("Connect " + m_name + " > " + dynamic_cast<Pin&>(other).m_name);
    }

private:
    RecordedSound& m_sound;
    std::string m_name;
    PinDirection m_direction;
};

class FilterInfo final : public mediagraph::IFilterInfo {
public:
    FilterInfo(RecordedSound& sound, const RecordedSound::Filter& kind, std::string name)
        : m_sound(sound), m_isFileSource(kind.isFileSource), m_name(std::move(name)),
          m_pin(std::make_shared<Pin>(sound, m_name, kind.direction)) {}

    std::string Name() const override {
        m_sound.called("Name " + m_name);
        return m_name;
    }
    ItemCollection<mediagraph::IPinInfo> Pins() const override {
        m_sound.called("Pins " + m_name);
        return ItemCollection<mediagraph::IPinInfo>({m_pin});
    }
    bool IsFileSource() const override {
        m_sound.called("IsFileSource " + m_name);
        return m_isFileSource;
    }
    void SetFilename(std::string_view fileName) override {
        m_sound.called("Filename " + std::string(fileName));
    }

private:
    RecordedSound& m_sound;
    bool m_isFileSource;
    std::string m_name;
    std::shared_ptr<Pin> m_pin;
};

using Filters = std::vector<std::shared_ptr<mediagraph::IFilterInfo>>;

class RegFilterInfo final : public mediagraph::IRegFilterInfo {
public:
    RegFilterInfo(RecordedSound& sound, RecordedSound::Filter kind, std::shared_ptr<Filters> inGraph)
        : m_sound(sound), m_kind(std::move(kind)), m_inGraph(std::move(inGraph)) {}

    std::string Name() const override {
        m_sound.called("RegName " + m_kind.name);
        return m_kind.name;
    }
    std::shared_ptr<mediagraph::IFilterInfo> Filter() override {
        m_sound.called("Filter " + m_kind.name);
        auto filter = std::make_shared<FilterInfo>(
            m_sound, m_kind, m_kind.nameInGraph.empty() ? m_kind.name : m_kind.nameInGraph);
        m_inGraph->push_back(filter);
        return filter;
    }

private:
    RecordedSound& m_sound;
    RecordedSound::Filter m_kind;
    std::shared_ptr<Filters> m_inGraph;
};

class Graph final : public mediagraph::FilgraphManager {
public:
    explicit Graph(RecordedSound& sound) : m_sound(sound) {}
    Graph(const Graph&) = delete;
    Graph& operator=(const Graph&) = delete;
    ~Graph() override { m_sound.log.emplace_back("graph gone"); }

    void Run() override { m_sound.called("Run"); }
    void Pause() override { m_sound.called("Pause"); }
    void Stop() override { m_sound.called("Stop"); }
    std::shared_ptr<const ItemCollection<mediagraph::IFilterInfo>> FilterCollection() const override {
        m_sound.called("FilterCollection");
        return std::make_shared<ItemCollection<mediagraph::IFilterInfo>>(*m_filters);
    }
    std::shared_ptr<const ItemCollection<mediagraph::IRegFilterInfo>> RegFilterCollection() override {
        m_sound.called("RegFilterCollection");
        std::vector<std::shared_ptr<mediagraph::IRegFilterInfo>> items;
        for (const auto& kind : m_sound.registered)
            items.push_back(std::make_shared<RegFilterInfo>(m_sound, kind, m_filters));
        return std::make_shared<ItemCollection<mediagraph::IRegFilterInfo>>(std::move(items));
    }

    double Duration() override {
        m_sound.called("Duration");
        if (m_sound.durations.empty())
            return m_sound.duration;
        const double next = m_sound.durations.front();
        m_sound.durations.pop_front();
        return next;
    }
    double CurrentPosition() override {
        m_sound.called("CurrentPosition");
        return m_sound.nextPosition();
    }
    void SetCurrentPosition(double seconds) override {
        m_sound.called("CurrentPosition = " + number(seconds));
        m_sound.position = seconds;
    }

    mediagraph::EventCode WaitForCompletion(std::chrono::milliseconds timeout) override {
        m_sound.called("WaitForCompletion " + std::to_string(timeout.count()));
        if (m_sound.isRunning)
            throw basic::RuntimeError(basic::kMediaStillRunning);
        return m_sound.ending;
    }

private:
    RecordedSound& m_sound;
    std::shared_ptr<Filters> m_filters = std::make_shared<Filters>();
};

} // namespace

RecordedSound::RecordedSound()
    : registered{{mediagraph::kFileSourceName, PinDirection::Output, true, {}},
                 {"Speaker", PinDirection::Input, false, {}}} {}

std::shared_ptr<mediagraph::FilgraphManager> RecordedSound::newFilgraphManager() {
    called("new graph");
    return std::make_shared<Graph>(*this);
}

std::uint32_t RecordedSound::waveOutGetNumDevs() {
    called("waveOutGetNumDevs");
    return static_cast<std::uint32_t>(devices.size());
}

std::uint32_t RecordedSound::waveOutGetDevCapsA(std::uint32_t device, mediagraph::WaveOutCaps& record,
                                                std::uint32_t size) {
    called("waveOutGetDevCapsA " + std::to_string(device));
    asksForSize = size;
    if (device == failingDevice)
        return mediagraph::kWaveBadDeviceId;
    std::copy(devices[device].begin(), devices[device].end(), record.ProductName.begin());
    return mediagraph::kWaveNoError;
}

void RecordedSound::called(const std::string& call) {
    log.push_back(call);
    onCall(call);
    for (Fault& fault : m_faults)
        if (fault.times > 0 && call.starts_with(fault.beginning)) {
            --fault.times;
            throw basic::RuntimeError(fault.number, call);
        }
}

std::vector<std::string> RecordedSound::takeLog() {
    return std::exchange(log, {});
}

void RecordedSound::fail(const std::string& beginning, std::int32_t number, int times) {
    m_faults.push_back({beginning, number, times});
}

double RecordedSound::nextPosition() {
    if (positions.empty())
        return position;
    const double next = positions.front();
    positions.pop_front();
    return next;
}

} // namespace audio
