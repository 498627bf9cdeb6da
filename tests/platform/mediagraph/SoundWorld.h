// SPDX-FileCopyrightText: 2026 The qmClient authors
// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once
// A workstation with a sound server of its own and a share with messages on it, and graphs built as the
// playback engine builds them: file source, renderer, connection.

#include "platform/mediagraph/DeviceList.h"
#include "platform/mediagraph/FilgraphManager.h"
#include "platform/mediagraph/Samples.h"
#include "platform/mediagraph/SoundSystem.h"
#include "platform/mediagraph/ThreadCount.h"
#include "platform/mediagraph/Waiting.h"
#include "tests/platform/mediagraph/ErrorOf.h"
#include "tests/platform/mediagraph/SoundServer.h"
#include "tests/platform/mediagraph/TestSounds.h"
#include "tests/platform/share/TemporaryFolder.h"

#include <cstdint>
#include <memory>
#include <optional>
#include <string>
#include <vector>

namespace mediagraph::testing {

using Graph = std::shared_ptr<FilgraphManager>;

class SoundWorld {
public:
    explicit SoundWorld(SoundServer::Begin begin = SoundServer::Begin::Started);
    SoundWorld(const SoundWorld&) = delete;
    SoundWorld& operator=(const SoundWorld&) = delete;
    // Waits for the threads that play: the next world changes the environment that they read.
    ~SoundWorld();

    SoundServer server;

    SoundSystem& sound() { return *m_sound; }
    // A graph of this world's messages that knows these devices instead of the workstation's.
    Graph newGraph(DeviceList devices);
    // The file's name on this machine, and on the share.
    std::string pathOf(const std::string& file) const { return m_share.path(file); }
    static std::string nameOf(const std::string& file) { return R"(\\srv\Quillamar_0$\)" + file; }

    // A message of that many seconds on the share; its file name.
    std::string makeMessage(double seconds,
                            const SoundKind& kind = {"pcm16", SF_FORMAT_PCM_16, 8000, 1}) const;
    Samples decoded(const std::string& file) const;

    // Puts the message and the device (the desktop's default unless named) into a new graph and connects
    // them.
    Graph connected(const std::string& file, const std::string& device = "Default Audio Device");
    // The same, run and come to `seconds`; throws when it does not.
    Graph playing(const std::string& file, double seconds,
                  const std::string& device = "Default Audio Device");
    // Whether nothing plays at the server any more, or soon.
    bool isDeviceFree() const;
    // As connected(), in a graph that is there.
    void connect(FilgraphManager& graph, const std::string& file, const std::string& device);
    void endSound() { m_sound.reset(); }

private:
    share::testing::TemporaryFolder m_share;
    SleepWaiting m_waiting;
    std::unique_ptr<SoundSystem> m_sound;
    std::vector<std::shared_ptr<ThreadCount>> m_threads; // of the graphs beside m_sound
};

// The first registered filter of this name.
std::shared_ptr<IRegFilterInfo> registered(FilgraphManager& graph, const std::string& name);

// How the graph ended, asked as the engine asks while it runs; nothing when it does not end in time.
std::optional<EventCode> endOf(FilgraphManager& graph, std::chrono::seconds limit = std::chrono::seconds{20});

// The one error that reading the position gives, after which the graph answers that playing failed.
std::int32_t toldFailure(FilgraphManager& graph);

// Whether the graph's position came to `seconds`.
bool comesTo(FilgraphManager& graph, double seconds);

} // namespace mediagraph::testing
