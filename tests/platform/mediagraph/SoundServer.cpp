// SPDX-FileCopyrightText: 2026 The qmClient authors
// SPDX-License-Identifier: GPL-3.0-or-later
#include "tests/platform/mediagraph/SoundServer.h"

#include "platform/mediagraph/PulseServer.h"
#include "tests/platform/mediagraph/WaitUntil.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <csignal>
#include <cstdlib>
#include <fstream>
#include <iterator>
#include <thread>

namespace mediagraph::testing {
namespace {

// The protocol comes last: who can connect finds everything.
constexpr const char* kScript =
    R"(load-module module-null-sink sink_name=first norewinds=1 rate=48000 channels=2 sink_properties=device.description=First
load-module module-null-sink sink_name=second norewinds=1 rate=48000 channels=2 sink_properties=device.description=Second
load-module module-always-sink
set-default-sink first
load-module module-native-protocol-unix auth-anonymous=1 socket=)";

std::string contentOf(const std::string& path) {
    std::ifstream file(path);
    return {std::istreambuf_iterator<char>(file), {}};
}

} // namespace

SoundServer::SoundServer(Begin begin) {
    const std::string folder = m_folder.path();
    for (const char* name :
         {"HOME", "XDG_RUNTIME_DIR", "XDG_CONFIG_HOME", "XDG_CACHE_HOME", "PULSE_RUNTIME_PATH"})
        ::setenv(name, folder.c_str(), 1);
    ::setenv("PULSE_SERVER", ("unix:" + socket()).c_str(), 1);
    ::setenv("GST_REGISTRY", QM_GST_REGISTRY, 1);
    ::unsetenv("DISPLAY");
    ::unsetenv("DBUS_SESSION_BUS_ADDRESS");
    if (begin == Begin::Started)
        start();
}

void SoundServer::start() {
    const std::string script = m_folder.makeFile("default.pa", kScript + socket() + "\n");
    // Idle, it ends by itself: a test that crashed leaves none behind.
    m_process = std::make_unique<ChildProcess>(std::vector<std::string>{
        "pulseaudio", "-n", "--daemonize=no", "--system=false", "--exit-idle-time=60", "--realtime=no",
        "--high-priority=no", "--use-pid-file=no", "--disallow-exit", "-F", script});
    ASSERT_TRUE(waitUntil([] { return PulseServer().sinks().has_value(); })) << "no sound server";
}

void SoundServer::kill() {
    m_process->end(SIGKILL);
}

void SoundServer::standStill(std::chrono::milliseconds time) {
    freeze();
    std::this_thread::sleep_for(time);
    thaw();
}

std::string SoundServer::control(const std::vector<std::string>& words) const {
    std::vector<std::string> command{"pactl"};
    command.insert(command.end(), words.begin(), words.end());
    const std::string output = m_folder.path("pactl.out");
    EXPECT_EQ(ChildProcess(command, output).result(), 0) << words.front();
    return contentOf(output);
}

void SoundServer::unplug(const std::string& sink) const {
    const std::string modules = control({"list", "short", "modules"});
    const std::size_t at = modules.find("sink_name=" + sink + " ");
    ASSERT_NE(at, std::string::npos) << modules;
    const std::size_t line = modules.rfind('\n', at) + 1;
    control({"unload-module", modules.substr(line, modules.find('\t', line) - line)});
}

std::size_t SoundServer::streamCount() const {
    const std::string streams = control({"list", "short", "sink-inputs"});
    return static_cast<std::size_t>(std::ranges::count(streams, '\n'));
}

} // namespace mediagraph::testing
