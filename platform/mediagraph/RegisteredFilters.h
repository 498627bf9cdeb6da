// SPDX-FileCopyrightText: 2026 The qmClient authors
// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once
// The kinds of filters that a graph can be given: the file source, and a renderer for each output device.

#include "platform/mediagraph/IRegFilterInfo.h"
#include "platform/mediagraph/OutputDevice.h"

#include <memory>
#include <vector>

namespace mediagraph {

class Filgraph;

std::vector<std::shared_ptr<IRegFilterInfo>> registeredFilters(const std::weak_ptr<Filgraph>& graph,
                                                               const std::vector<OutputDevice>& devices);

} // namespace mediagraph
