// SPDX-FileCopyrightText: 2026 The qmClient authors
// SPDX-License-Identifier: GPL-3.0-or-later
#include "platform/mediagraph/Filgraph.h"

#include "platform/basic/RuntimeError.h"
#include "platform/basic/TextCompare.h"
#include "platform/mediagraph/MessageDecoder.h"
#include "platform/mediagraph/PlayingThread.h"
#include "platform/mediagraph/RegisteredFilters.h"

#include <algorithm>
#include <cmath>
#include <thread>

namespace mediagraph {
namespace {

// Decoding depends on nobody else; this only ends what could never end.
constexpr WaitLimits kDecodingLimits{std::chrono::minutes{2}, std::chrono::minutes{2}};

} // namespace

Filgraph::~Filgraph() {
    if (m_playback)
        m_playback->leave();
}

std::shared_ptr<const ItemCollection<IFilterInfo>> Filgraph::FilterCollection() const {
    return std::make_shared<const ItemCollection<IFilterInfo>>(m_filters);
}

std::shared_ptr<const ItemCollection<IRegFilterInfo>> Filgraph::RegFilterCollection() {
    return std::make_shared<const ItemCollection<IRegFilterInfo>>(
        [graph = weak_from_this(), services = m_services] {
            return registeredFilters(graph, services->devices.look());
        });
}

double Filgraph::Duration() {
    return m_playback ? m_playback->duration() : 0;
}

double Filgraph::CurrentPosition() {
    return m_playback ? m_playback->position() : 0;
}

void Filgraph::SetCurrentPosition(double seconds) {
    if (std::isnan(seconds))
        throw basic::RuntimeError(basic::kInvalidProcedureCall);
    if (m_playback)
        m_playback->seek(seconds);
}

EventCode Filgraph::WaitForCompletion(std::chrono::milliseconds timeout) {
    if (m_playback)
        return m_playback->waitForCompletion(timeout);
    if (m_state != PlayState::Playing)
        throw basic::RuntimeError(basic::kMediaWrongState);
    std::this_thread::sleep_for(timeout);
    throw basic::RuntimeError(basic::kMediaStillRunning);
}

std::shared_ptr<IFilterInfo> Filgraph::addFileSource() {
    return m_filters.emplace_back(std::make_shared<FileSource>(weak_from_this(), freeName(kFileSourceName)));
}

std::shared_ptr<IFilterInfo> Filgraph::addRenderer(const OutputDevice& device) {
    return m_filters.emplace_back(
        std::make_shared<Renderer>(weak_from_this(), freeName(device.name), device));
}

// "Headset", "Headset 0001": a graph never holds two filters of one name.
std::string Filgraph::freeName(const std::string& wanted) const {
    std::string name = wanted;
    const auto isTaken = [&](const auto& filter) { return basic::equalText(filter->Name(), name); };
    for (int number = 1; std::ranges::any_of(m_filters, isTaken); ++number) {
        const std::string digits = std::to_string(number);
        name = wanted;
        name.append(" ").append(4 - std::min<std::size_t>(digits.size(), 4), '0').append(digits);
    }
    return name;
}

std::vector<std::byte> Filgraph::readFile(const std::string& fileName) {
    return m_services->reader.read(fileName);
}

void Filgraph::connect(const FileSource& source, const Renderer& renderer) {
    if (m_state != PlayState::Stopped)
        throw basic::RuntimeError(basic::kMediaWrongState, "Connect: the filter graph is not stopped.");
    if (m_playback)
        throw basic::RuntimeError(basic::kMediaCannotConnect,
                                  "Connect: the filter graph is connected already.");
    if (!source.hasFile())
        throw basic::RuntimeError(basic::kMediaCannotConnect, "Connect: the file source holds no file.");
    const std::function<Samples(Progress&)> decode =
        [bytes = source.bytes(), name = source.fileName()](Progress&) { return decodeMessage(*bytes, name); };
    m_samples = std::make_shared<const Samples>(
        m_services->decoding.run(kDecodingLimits, source.fileName() + ": decoding does not end.", decode));
    m_device = renderer.device();
    m_playback = std::make_shared<Playback>(m_samples->seconds());
}

// The thread begins with the first order that it can be of use for, so that a graph that is never run starts
// nothing.
void Filgraph::want(PlayState state) {
    m_state = state;
    if (!m_playback)
        return;
    if (!m_hasThread && state != PlayState::Stopped) {
        startPlayingThread({m_playback, m_samples, m_device}, m_services->threads);
        m_hasThread = true;
    }
    m_playback->want(state);
}

} // namespace mediagraph
