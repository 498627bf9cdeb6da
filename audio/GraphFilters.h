// SPDX-FileCopyrightText: 2026 The qmClient authors
// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once
// The filters of the playback engine's graph: finds registered filters by name and puts them in, finds the
// two pins in the graph and connects them. Names compare without case. Holds a share of one graph's filters
// between take() and release(). Failures are reported as clsWave's procedures of these names. The error
// handler must outlive it; user-interface thread.

#include "errors/ErrorHandler.h"
#include "platform/mediagraph/IMediaControl.h"

#include <cstdint>
#include <memory>
#include <string_view>

namespace audio {

// Of AddRegFilter: a file source may be of any kind, a renderer takes input, anything that gives output.
inline constexpr std::int32_t kPinTypeAny = 0;
inline constexpr std::int32_t kPinTypeInput = 1;
inline constexpr std::int32_t kPinTypeOutput = 2;

class GraphFilters {
public:
    using Filter = std::shared_ptr<mediagraph::IFilterInfo>;
    using Pin = std::shared_ptr<mediagraph::IPinInfo>;

    explicit GraphFilters(errors::ErrorHandler& errorHandler) : m_errors(errorHandler) {}

    // The registered filters of a graph.
    void take(mediagraph::IMediaControl& graph) { m_RegFilters = graph.RegFilterCollection(); }
    // Lets go of everything but the renderer's pin, which stays until the next one is found.
    void release();
    void releaseAll();

    // Puts the first registered filter of that name and kind into the graph; a file source gets the file.
    bool AddRegFilter(std::string_view filterName, std::string_view fileName, std::int32_t pinType);
    // Whether the filter's first pin has the direction of the type. Looking at it puts the filter into the
    // graph, whatever the answer.
    bool CheckFilterForType(mediagraph::IRegFilterInfo& registered, std::int32_t pinType);
    // A registered filter, put into the graph by its name alone; nothing when there is none.
    bool AppendFilter(std::string_view filterName, Filter& filter);

    // The last file source in the graph is the source, whatever stood there before.
    void findSource(const mediagraph::IMediaControl& graph);
    // The first filter whose name begins with the renderer's and whose first pin takes input.
    void findRenderer(const mediagraph::IMediaControl& graph, std::string_view rendererName);
    // Error 91 unless both pins were found.
    void connect();

private:
    errors::ErrorHandler& m_errors;
    std::shared_ptr<const mediagraph::ItemCollection<mediagraph::IRegFilterInfo>> m_RegFilters;
    Filter m_SourceFilter;
    Pin m_SourcePin;
    Pin m_RendererPin;
};

} // namespace audio
