// SPDX-FileCopyrightText: 2026 The qmClient authors
// SPDX-License-Identifier: GPL-3.0-or-later
#include "platform/mediagraph/RegisteredFilters.h"

#include "platform/basic/RuntimeError.h"
#include "platform/mediagraph/Filgraph.h"

#include <functional>

namespace mediagraph {
namespace {

class RegisteredFilter final : public IRegFilterInfo {
public:
    using Insert = std::function<std::shared_ptr<IFilterInfo>(Filgraph&)>;

    RegisteredFilter(std::weak_ptr<Filgraph> graph, std::string name, Insert insert)
        : m_graph(std::move(graph)), m_name(std::move(name)), m_insert(std::move(insert)) {}

    std::string Name() const override { return m_name; }

    std::shared_ptr<IFilterInfo> Filter() override {
        const auto graph = m_graph.lock();
        if (!graph)
            throw basic::RuntimeError(basic::kObjectNotSet);
        return m_insert(*graph);
    }

private:
    std::weak_ptr<Filgraph> m_graph;
    std::string m_name;
    Insert m_insert;
};

} // namespace

std::vector<std::shared_ptr<IRegFilterInfo>> registeredFilters(const std::weak_ptr<Filgraph>& graph,
                                                               const std::vector<OutputDevice>& devices) {
    std::vector<std::shared_ptr<IRegFilterInfo>> filters{std::make_shared<RegisteredFilter>(
        graph, kFileSourceName, [](Filgraph& into) { return into.addFileSource(); })};
    for (const OutputDevice& device : devices)
        filters.push_back(std::make_shared<RegisteredFilter>(
            graph, device.name, [device](Filgraph& into) { return into.addRenderer(device); }));
    return filters;
}

} // namespace mediagraph
