// SPDX-FileCopyrightText: 2026 The qmClient authors
// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once
// The workstation's sound: what makes filter graphs and lists output devices, built once by the program.
// Building it does nothing yet: the list takes a quick bounded look at the sound server when it is asked, and
// GStreamer is started by the first Run() of a connected graph. User-interface thread. Graphs may outlive it,
// but nothing it was given.

#include "platform/mediagraph/MediaGraphs.h"
#include "platform/mediagraph/WaveOut.h"
#include "platform/share/FileSystemObject.h"

#include <functional>
#include <memory>

namespace mediagraph {

class Waiting;

class SoundSystem {
public:
    // Makes the file system that one message is read through. Called on the reading thread, which alone uses
    // what it answers, so it must be callable from any thread and must not refer to what can go away while a
    // read on a dead server is still stuck.
    using NewFiles = std::function<std::unique_ptr<share::FileSystemObject>()>;

    SoundSystem(NewFiles newFiles, Waiting& waiting);
    SoundSystem(const SoundSystem&) = delete;
    SoundSystem& operator=(const SoundSystem&) = delete;
    ~SoundSystem();

    MediaGraphs& graphs() { return *m_graphs; }
    WaveOut& waveOut() { return *m_waveOut; }

private:
    std::unique_ptr<MediaGraphs> m_graphs;
    std::unique_ptr<WaveOut> m_waveOut;
};

} // namespace mediagraph
