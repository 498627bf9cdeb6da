// SPDX-FileCopyrightText: 2026 The qmClient authors
// SPDX-License-Identifier: GPL-3.0-or-later
#include "tests/platform/mediagraph/SoundWorld.h"

#include "platform/mediagraph/Filgraph.h"
#include "platform/mediagraph/MessageDecoder.h"
#include "platform/share/LocalFileSystemObject.h"
#include "tests/platform/mediagraph/WaitUntil.h"

#include <gtest/gtest.h>

#include <stdexcept>
#include <utility>

namespace mediagraph::testing {
namespace {

SoundSystem::NewFiles filesBelow(const std::string& folder) {
    return [folder] {
        return std::make_unique<share::LocalFileSystemObject>(share::ShareResolver(
            [folder](std::string_view) { return folder; }, [] { return std::string(); }));
    };
}

} // namespace

SoundWorld::SoundWorld(SoundServer::Begin begin)
    : server(begin), m_sound(std::make_unique<SoundSystem>(filesBelow(m_share.path()), m_waiting)) {}

SoundWorld::~SoundWorld() {
    for (const auto& threads : m_threads)
        EXPECT_TRUE(threads->waitForNone(std::chrono::seconds{20}));
}

std::string SoundWorld::makeMessage(double seconds, const SoundKind& kind) const {
    makeSoundFile(pathOf(kind.name + ".wav"), kind, seconds);
    return kind.name + ".wav";
}

Samples SoundWorld::decoded(const std::string& file) const {
    return decodeMessage(bytesOf(pathOf(file)), file);
}

std::shared_ptr<IRegFilterInfo> registered(FilgraphManager& graph, const std::string& name) {
    const auto filters = graph.RegFilterCollection();
    for (const auto& filter : *filters)
        if (filter->Name() == name)
            return filter;
    ADD_FAILURE() << "no filter " << name;
    return nullptr;
}

void SoundWorld::connect(FilgraphManager& graph, const std::string& file, const std::string& device) {
    const auto source = registered(graph, kFileSourceName)->Filter();
    source->SetFilename(nameOf(file));
    const auto renderer = registered(graph, device)->Filter();
    source->Pins().Item(0)->Connect(*renderer->Pins().Item(0));
}

Graph SoundWorld::newGraph(DeviceList devices) {
    const auto services = std::make_shared<GraphServices>(GraphServices{
        std::move(devices), MessageReader(filesBelow(m_share.path()), m_waiting), Aside(m_waiting)});
    m_threads.push_back(services->threads);
    return std::make_shared<Filgraph>(services);
}

Graph SoundWorld::connected(const std::string& file, const std::string& device) {
    auto graph = m_sound->graphs().newFilgraphManager();
    connect(*graph, file, device);
    return graph;
}

Graph SoundWorld::playing(const std::string& file, double seconds, const std::string& device) {
    auto graph = connected(file, device);
    graph->Run();
    if (!comesTo(*graph, seconds))
        throw std::runtime_error(file + " does not come to " + std::to_string(seconds) + " seconds");
    return graph;
}

bool SoundWorld::isDeviceFree() const {
    return waitUntil([this] { return server.streamCount() == 0; });
}

std::optional<EventCode> endOf(FilgraphManager& graph, std::chrono::seconds limit) {
    std::optional<EventCode> code;
    waitUntil(
        [&] {
            const auto number =
                errorOf([&] { code = graph.WaitForCompletion(std::chrono::milliseconds{10}); });
            return number != basic::kMediaStillRunning;
        },
        limit);
    return code;
}

std::int32_t toldFailure(FilgraphManager& graph) {
    std::int32_t number = 0;
    waitUntil([&] {
        number = errorOf([&] { graph.CurrentPosition(); });
        return number != 0;
    });
    EXPECT_EQ(errorOf([&] { graph.CurrentPosition(); }), 0) << "told twice";
    EXPECT_EQ(endOf(graph), EventCode::ErrorAbort);
    return number;
}

bool comesTo(FilgraphManager& graph, double seconds) {
    return waitUntil([&] { return graph.CurrentPosition() >= seconds; });
}

} // namespace mediagraph::testing
