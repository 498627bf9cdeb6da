// SPDX-FileCopyrightText: 2026 The qmClient authors
// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once
// The real filter graph: its filters, and one connection of a message with a device. The message is decoded
// when it is connected; playing itself happens on a thread that begins with the first Run() and ends with the
// graph. User-interface thread.

#include "platform/mediagraph/DeviceList.h"
#include "platform/mediagraph/FilgraphManager.h"
#include "platform/mediagraph/GraphFilters.h"
#include "platform/mediagraph/MessageReader.h"
#include "platform/mediagraph/Playback.h"
#include "platform/mediagraph/Samples.h"
#include "platform/mediagraph/ThreadCount.h"

#include <cstddef>
#include <memory>
#include <optional>
#include <string>
#include <vector>

namespace mediagraph {

// What every graph of one workstation uses; graphs share it.
struct GraphServices {
    DeviceList devices;
    MessageReader reader;
    Aside decoding;
    std::shared_ptr<ThreadCount> threads = std::make_shared<ThreadCount>();
};

class Filgraph final : public FilgraphManager, public std::enable_shared_from_this<Filgraph> {
public:
    explicit Filgraph(std::shared_ptr<GraphServices> services) : m_services(std::move(services)) {}
    ~Filgraph() override;

    void Run() override { want(PlayState::Playing); }
    void Pause() override { want(PlayState::Paused); }
    void Stop() override { want(PlayState::Stopped); }
    std::shared_ptr<const ItemCollection<IFilterInfo>> FilterCollection() const override;
    std::shared_ptr<const ItemCollection<IRegFilterInfo>> RegFilterCollection() override;

    double Duration() override;
    double CurrentPosition() override;
    void SetCurrentPosition(double seconds) override;

    EventCode WaitForCompletion(std::chrono::milliseconds timeout) override;

    // For its filters.
    std::shared_ptr<IFilterInfo> addFileSource();
    std::shared_ptr<IFilterInfo> addRenderer(const OutputDevice& device);
    std::vector<std::byte> readFile(const std::string& fileName);
    void connect(const FileSource& source, const Renderer& renderer);

private:
    void want(PlayState state);
    std::string freeName(const std::string& wanted) const;

    std::shared_ptr<GraphServices> m_services;
    std::vector<std::shared_ptr<IFilterInfo>> m_filters;
    PlayState m_state = PlayState::Stopped;
    std::shared_ptr<Playback> m_playback; // none without a connection
    std::shared_ptr<const Samples> m_samples;
    OutputDevice m_device;
    bool m_hasThread = false;
};

} // namespace mediagraph
