// SPDX-FileCopyrightText: 2026 The qmClient authors
// SPDX-License-Identifier: GPL-3.0-or-later
#include "platform/mediagraph/SoundSystem.h"

#include "platform/mediagraph/Filgraph.h"
#include "platform/mediagraph/ListedWaveOut.h"

namespace mediagraph {
namespace {

// Long enough for a device to be let go, short enough for nobody to notice at the end of the program.
constexpr std::chrono::milliseconds kFarewell{500};

class GstMediaGraphs final : public MediaGraphs {
public:
    explicit GstMediaGraphs(std::shared_ptr<GraphServices> services) : m_services(std::move(services)) {}
    // A thread that hangs in the sound server is left to the end of the process.
    ~GstMediaGraphs() override { m_services->threads->waitForNone(kFarewell); }

    std::shared_ptr<FilgraphManager> newFilgraphManager() override {
        return std::make_shared<Filgraph>(m_services);
    }

private:
    std::shared_ptr<GraphServices> m_services;
};

} // namespace

SoundSystem::SoundSystem(NewFiles newFiles, Waiting& waiting)
    : m_graphs(std::make_unique<GstMediaGraphs>(std::make_shared<GraphServices>(GraphServices{
          DeviceList::ofWorkstation(), MessageReader(std::move(newFiles), waiting), Aside(waiting)}))),
      m_waveOut(std::make_unique<ListedWaveOut>(DeviceList::ofWorkstation())) {}

SoundSystem::~SoundSystem() = default;

} // namespace mediagraph
