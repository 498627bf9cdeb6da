// SPDX-FileCopyrightText: 2026 The qmClient authors
// SPDX-License-Identifier: GPL-3.0-or-later
#include "audio/GraphFilters.h"

#include "audio/Required.h"
#include "audio/WaveErrors.h"
#include "errors/Procedure.h"
#include "platform/basic/TextCompare.h"

namespace audio {
namespace {

using mediagraph::PinDirection;

bool beginsWith(std::string_view name, std::string_view beginning) {
    return basic::foldCase(name).starts_with(basic::foldCase(beginning));
}

} // namespace

void GraphFilters::release() {
    m_SourceFilter.reset();
    m_SourcePin.reset();
    m_RegFilters.reset();
}

void GraphFilters::releaseAll() {
    release();
    m_RendererPin.reset();
}

bool GraphFilters::AddRegFilter(std::string_view filterName, std::string_view fileName,
                                std::int32_t pinType) {
    errors::Procedure proc{m_errors, "clsWave", "clsWave.AddRegFilter"};
    const auto registered = m_RegFilters;
    std::shared_ptr<mediagraph::IRegFilterInfo> found;
    const std::int32_t count = proc.value(0, [&] { return required(registered).Count(); });
    for (std::int32_t i = 0; i < count && proc.running() && !found; ++i)
        proc.step([&] {
            const auto& entry = registered->Item(i);
            if (basic::equalText(entry->Name(), filterName) && CheckFilterForType(*entry, pinType))
                found = entry;
        });
    if (!proc.running())
        return false;
    if (!found) {
        ReportWaveError(m_errors, filterNotFound(filterName), "clsWave.AddRegFilter");
        return false;
    }
    Filter filter;
    proc.step([&] { filter = found->Filter(); });
    if (!proc.value(false, [&] { return required(filter).IsFileSource(); }))
        return proc.finish();
    if (fileName.empty())
        return false;
    proc.step([&] { filter->SetFilename(fileName); });
    return proc.finish();
}

bool GraphFilters::CheckFilterForType(mediagraph::IRegFilterInfo& registered, std::int32_t pinType) {
    if (pinType == kPinTypeAny)
        return true;
    errors::Procedure proc{m_errors, "clsWave", "clsWave.CheckFilterForType"};
    const auto wanted = pinType == kPinTypeOutput ? PinDirection::Output : PinDirection::Input;
    Filter filter;
    proc.step([&] { filter = registered.Filter(); });
    return proc.value(false, [&] { return required(required(filter).Pins().Item(0)).Direction() == wanted; });
}

bool GraphFilters::AppendFilter(std::string_view filterName, Filter& filter) {
    errors::Procedure proc{m_errors, "clsWave", "clsWave.AppendFilter"};
    const auto registered = m_RegFilters;
    const std::int32_t count = proc.value(0, [&] { return required(registered).Count(); });
    for (std::int32_t i = 0; i < count && proc.running(); ++i) {
        if (!proc.value(false, [&] { return basic::equalText(registered->Item(i)->Name(), filterName); }))
            continue;
        return proc.step([&] { filter = registered->Item(i)->Filter(); });
    }
    return false;
}

void GraphFilters::findSource(const mediagraph::IMediaControl& graph) {
    const auto filters = graph.FilterCollection();
    for (const Filter& filter : required(filters)) {
        if (!basic::equalText(filter->Name(), mediagraph::kFileSourceName))
            continue;
        m_SourceFilter = filter;
        m_SourcePin = filter->Pins().Item(0);
    }
}

void GraphFilters::findRenderer(const mediagraph::IMediaControl& graph, std::string_view rendererName) {
    m_RendererPin.reset();
    const auto filters = graph.FilterCollection();
    for (const Filter& filter : required(filters)) {
        if (!beginsWith(filter->Name(), rendererName))
            continue;
        const Pin pin = filter->Pins().Item(0);
        if (required(pin).Direction() != PinDirection::Input)
            continue;
        m_RendererPin = pin;
        return;
    }
}

void GraphFilters::connect() {
    const Pin source = m_SourcePin;
    const Pin renderer = m_RendererPin;
    required(source).Connect(required(renderer));
}

} // namespace audio
