// SPDX-FileCopyrightText: 2026 The qmClient authors
// SPDX-License-Identifier: GPL-3.0-or-later
#include "platform/mediagraph/PulseServer.h"

#include <pulse/context.h>
#include <pulse/introspect.h>
#include <pulse/mainloop.h>

#include <algorithm>
#include <memory>

namespace mediagraph {
namespace {

using Clock = std::chrono::steady_clock;

// Both PulseAudio and PipeWire call it so.
constexpr std::string_view kDummySink = "auto_null";

struct Free {
    void operator()(pa_mainloop* loop) const { pa_mainloop_free(loop); }
    void operator()(pa_context* context) const {
        pa_context_disconnect(context);
        pa_context_unref(context);
    }
    void operator()(pa_operation* operation) const { pa_operation_unref(operation); }
};

// One connection for one question.
class Visit {
public:
    explicit Visit(std::chrono::milliseconds limit)
        : m_end(Clock::now() + limit), m_loop(pa_mainloop_new()),
          m_context(m_loop ? pa_context_new(pa_mainloop_get_api(m_loop.get()), nullptr) : nullptr) {}

    std::optional<std::vector<PulseSink>> sinks() {
        if (!m_context) // no descriptor to be had
            return std::nullopt;
        if (pa_context_connect(m_context.get(), nullptr, PA_CONTEXT_NOAUTOSPAWN, nullptr) < 0)
            return std::nullopt;
        if (!turnWhile([this] { return isConnecting(); }) || state() != PA_CONTEXT_READY)
            return std::nullopt;
        const std::unique_ptr<pa_operation, Free> asking(
            pa_context_get_sink_info_list(m_context.get(), keepSink, this));
        if (!asking ||
            !turnWhile([&] { return pa_operation_get_state(asking.get()) == PA_OPERATION_RUNNING; }))
            return std::nullopt;
        return m_isComplete ? std::optional(std::move(m_sinks)) : std::nullopt;
    }

private:
    pa_context_state_t state() const { return pa_context_get_state(m_context.get()); }
    bool isConnecting() const { return PA_CONTEXT_IS_GOOD(state()) && state() != PA_CONTEXT_READY; }

    // False when the time is over.
    template <typename Condition>
    bool turnWhile(Condition condition) {
        while (condition()) {
            const auto rest = std::chrono::duration_cast<std::chrono::microseconds>(m_end - Clock::now());
            if (rest.count() <= 0 || pa_mainloop_prepare(m_loop.get(), static_cast<int>(rest.count())) < 0 ||
                pa_mainloop_poll(m_loop.get()) < 0 || pa_mainloop_dispatch(m_loop.get()) < 0)
                return false;
        }
        return true;
    }

    static void keepSink(pa_context*, const pa_sink_info* sink, int end, void* user) {
        auto& visit = *static_cast<Visit*>(user);
        if (end != 0)
            visit.m_isComplete = end > 0;
        else if (sink->name != kDummySink)
            visit.m_sinks.push_back({sink->name, sink->description});
    }

    Clock::time_point m_end;
    std::unique_ptr<pa_mainloop, Free> m_loop;
    std::unique_ptr<pa_context, Free> m_context;
    std::vector<PulseSink> m_sinks;
    bool m_isComplete = false;
};

} // namespace

std::optional<std::vector<PulseSink>> PulseServer::sinks() const {
    return Visit(m_limit).sinks();
}

std::optional<bool> PulseServer::hasSink(std::string_view name) const {
    const auto found = sinks();
    if (!found)
        return std::nullopt;
    return std::ranges::any_of(*found, [name](const PulseSink& sink) { return sink.name == name; });
}

} // namespace mediagraph
