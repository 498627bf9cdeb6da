// SPDX-FileCopyrightText: 2026 The qmClient authors
// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once
// The two kinds of filters that a graph holds, and their pins. They know the graph but do not keep it: COM
// objects that outlive it answer what they can. User-interface thread.

#include "platform/mediagraph/IFilterInfo.h"
#include "platform/mediagraph/OutputDevice.h"

#include <cstddef>
#include <functional>
#include <memory>
#include <string>
#include <vector>

namespace mediagraph {

class Filgraph;
class GraphFilter;

class GraphPin final : public IPinInfo {
public:
    GraphPin(std::weak_ptr<GraphFilter> filter, PinDirection direction)
        : m_filter(std::move(filter)), m_direction(direction) {}

    PinDirection Direction() const override { return m_direction; }
    void Connect(IPinInfo& other) override;

    // Error 91 when the filter is gone.
    std::shared_ptr<GraphFilter> filter() const;

private:
    std::weak_ptr<GraphFilter> m_filter;
    PinDirection m_direction;
};

class GraphFilter : public IFilterInfo, public std::enable_shared_from_this<GraphFilter> {
public:
    GraphFilter(std::weak_ptr<Filgraph> graph, std::string name)
        : m_graph(std::move(graph)), m_name(std::move(name)) {}

    std::string Name() const override { return m_name; }
    ItemCollection<IPinInfo> Pins() const override;

    // Error 91 when it is gone.
    std::shared_ptr<Filgraph> graph() const;

protected:
    virtual PinDirection direction() const = 0;

private:
    std::weak_ptr<Filgraph> m_graph;
    std::string m_name;
    mutable std::shared_ptr<GraphPin> m_pin; // made when it is asked for first
};

class FileSource final : public GraphFilter {
public:
    using GraphFilter::GraphFilter;

    bool IsFileSource() const override { return true; }
    void SetFilename(std::string_view fileName) override;

    bool hasFile() const noexcept { return !m_fileName.empty(); }
    const std::string& fileName() const noexcept { return m_fileName; }
    const std::shared_ptr<const std::vector<std::byte>>& bytes() const noexcept { return m_bytes; }

private:
    PinDirection direction() const override { return PinDirection::Output; }

    std::string m_fileName;
    std::shared_ptr<const std::vector<std::byte>> m_bytes;
};

class Renderer final : public GraphFilter {
public:
    Renderer(std::weak_ptr<Filgraph> graph, std::string name, OutputDevice device)
        : GraphFilter(std::move(graph), std::move(name)), m_device(std::move(device)) {}

    bool IsFileSource() const override { return false; }
    void SetFilename(std::string_view fileName) override;

    const OutputDevice& device() const noexcept { return m_device; }

private:
    PinDirection direction() const override { return PinDirection::Input; }

    OutputDevice m_device;
};

} // namespace mediagraph
