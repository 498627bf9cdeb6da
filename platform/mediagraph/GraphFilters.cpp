// SPDX-FileCopyrightText: 2026 The qmClient authors
// SPDX-License-Identifier: GPL-3.0-or-later
#include "platform/mediagraph/GraphFilters.h"

#include "platform/basic/RuntimeError.h"
#include "platform/mediagraph/Filgraph.h"

namespace mediagraph {
namespace {

[[noreturn]] void refuseConnection(const char* why) {
    throw basic::RuntimeError(basic::kMediaCannotConnect, std::string("Connect: ").append(why));
}

template <typename Object>
std::shared_ptr<Object> lockedOrThrow(const std::weak_ptr<Object>& object) {
    auto found = object.lock();
    if (!found)
        throw basic::RuntimeError(basic::kObjectNotSet);
    return found;
}

} // namespace

std::shared_ptr<GraphFilter> GraphPin::filter() const {
    return lockedOrThrow(m_filter);
}

void GraphPin::Connect(IPinInfo& other) {
    const auto* otherPin = dynamic_cast<GraphPin*>(&other);
    if (otherPin == nullptr)
        refuseConnection("the other pin belongs to no filter graph.");
    const auto mine = filter();
    const auto theirs = otherPin->filter();
    const auto graph = mine->graph();
    if (theirs->graph() != graph)
        refuseConnection("the pins belong to different filter graphs.");
    const bool isForward = m_direction == PinDirection::Output;
    const auto source = std::dynamic_pointer_cast<FileSource>(isForward ? mine : theirs);
    const auto renderer = std::dynamic_pointer_cast<Renderer>(isForward ? theirs : mine);
    if (!source || !renderer)
        refuseConnection("an output pin and an input pin are needed.");
    graph->connect(*source, *renderer);
}

ItemCollection<IPinInfo> GraphFilter::Pins() const {
    if (!m_pin)
        m_pin =
            std::make_shared<GraphPin>(std::const_pointer_cast<GraphFilter>(shared_from_this()), direction());
    return ItemCollection<IPinInfo>({m_pin});
}

std::shared_ptr<Filgraph> GraphFilter::graph() const {
    return lockedOrThrow(m_graph);
}

void FileSource::SetFilename(std::string_view fileName) {
    m_fileName.clear();
    m_bytes.reset();
    const std::string name(fileName);
    m_bytes = std::make_shared<const std::vector<std::byte>>(graph()->readFile(name));
    m_fileName = name;
}

void Renderer::SetFilename(std::string_view) {
    throw basic::RuntimeError(basic::kNoSuchMember);
}

} // namespace mediagraph
