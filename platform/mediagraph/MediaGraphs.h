// SPDX-FileCopyrightText: 2026 The qmClient authors
// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once
// Makes filter graphs. Making one is cheap: it starts no sound and asks nobody anything. User-interface
// thread; graphs may outlive it.

#include "platform/mediagraph/FilgraphManager.h"

#include <memory>

namespace mediagraph {

class MediaGraphs {
public:
    MediaGraphs() = default;
    MediaGraphs(const MediaGraphs&) = delete;
    MediaGraphs& operator=(const MediaGraphs&) = delete;
    virtual ~MediaGraphs() = default;

    // An empty, stopped graph.
    virtual std::shared_ptr<FilgraphManager> newFilgraphManager() = 0;
};

} // namespace mediagraph
