// SPDX-FileCopyrightText: 2026 The qmClient authors
// SPDX-License-Identifier: GPL-3.0-or-later
#include "tests/platform/mediagraph/PipeWireServer.h"

#include "tests/platform/mediagraph/WaitUntil.h"

#include <gtest/gtest.h>

#include <cstdlib>
#include <filesystem>
#include <string_view>

namespace mediagraph::testing {
namespace {

// Cycles of 85 ms: a loaded machine misses the usual ones of 21 ms where nobody has real-time priority.
constexpr std::string_view kConfiguration = R"(
context.properties = {
  core.daemon = true core.name = pipewire-0 support.dbus = false
  default.clock.quantum = 4096 default.clock.min-quantum = 4096 default.clock.max-quantum = 4096
}
context.spa-libs = {
  audio.convert.* = audioconvert/libspa-audioconvert
  support.* = support/libspa-support
}
context.modules = [
  { name = libpipewire-module-protocol-native }
  { name = libpipewire-module-metadata }
  { name = libpipewire-module-spa-node-factory }
  { name = libpipewire-module-client-node }
  { name = libpipewire-module-client-device }
  { name = libpipewire-module-access }
  { name = libpipewire-module-adapter }
  { name = libpipewire-module-link-factory }
  { name = libpipewire-module-session-manager }
]
context.objects = [
  { factory = spa-node-factory args = {
      factory.name = support.node.driver node.name = clock node.group = pipewire.dummy priority.driver = 20000 } }
  { factory = adapter args = {
      factory.name = support.null-audio-sink node.name = first media.class = Audio/Sink
      audio.position = [ FL FR ] priority.session = 2000 object.linger = true } }
  { factory = adapter args = {
      factory.name = support.null-audio-sink node.name = second media.class = Audio/Sink
      audio.position = [ FL FR ] priority.session = 1000 object.linger = true } }
]
)";

bool isThere(const std::string& path) {
    return waitUntil([&] { return std::filesystem::exists(path); });
}

} // namespace

PipeWireServer::PipeWireServer(Manager manager) {
    const std::string folder = m_folder.path();
    for (const char* name : {"HOME", "XDG_RUNTIME_DIR", "XDG_CONFIG_HOME", "XDG_STATE_HOME"})
        ::setenv(name, folder.c_str(), 1);
    const std::string bus = "unix:path=" + m_folder.path("bus");
    ::setenv("DBUS_SESSION_BUS_ADDRESS", bus.c_str(), 1);
    m_bus = std::make_unique<ChildProcess>(
        std::vector<std::string>{"dbus-daemon", "--session", "--nofork", "--nopidfile", "--address=" + bus});
    EXPECT_TRUE(isThere(m_folder.path("bus"))) << "no message bus";
    m_server = std::make_unique<ChildProcess>(
        std::vector<std::string>{"pipewire", "-c", m_folder.makeFile("server.conf", kConfiguration)});
    EXPECT_TRUE(isThere(m_folder.path("pipewire-0"))) << "no PipeWire";
    if (manager == Manager::Started)
        startManager();
}

void PipeWireServer::startManager() {
    m_manager = std::make_unique<ChildProcess>(std::vector<std::string>{"wireplumber"});
    record("first");
}

void PipeWireServer::unplug(const std::string& sink) {
    EXPECT_EQ(ChildProcess({"pw-cli", "destroy", sink}).result(), 0) << sink;
}

std::unique_ptr<Recording> PipeWireServer::record(const std::string& sink) {
    const std::string file = m_folder.path("heard" + std::to_string(++m_recordings) + ".wav");
    return std::make_unique<Recording>(
        std::vector<std::string>{"pw-record", "--target=" + sink, "--properties={ stream.capture.sink=true }",
                                 "--rate=48000", "--channels=2", "--format=s16", file},
        file, Recording::kWavHeader);
}

} // namespace mediagraph::testing
