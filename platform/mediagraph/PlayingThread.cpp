// SPDX-FileCopyrightText: 2026 The qmClient authors
// SPDX-License-Identifier: GPL-3.0-or-later
#include "platform/mediagraph/PlayingThread.h"

#include "platform/mediagraph/GstRef.h"
#include "platform/mediagraph/Player.h"

#include <optional>
#include <string>

namespace mediagraph {
namespace {

// Nothing once GStreamer runs. It can be asked again and again, from any thread.
std::optional<basic::RuntimeError> gstreamerFailure() {
    GError* raw = nullptr;
    if (gst_init_check(nullptr, nullptr, &raw))
        return std::nullopt;
    const GstRef<GError> error(raw);
    std::string text("GStreamer does not start: ");
    return basic::RuntimeError(basic::kMediaNoHardware,
                               text.append(raw == nullptr ? "unknown" : raw->message));
}

void play(const PlayingTask& task) {
    const auto failure = gstreamerFailure();
    Player player(task);
    PlayOrder order;
    do {
        order = task.desk->next(order.number, player.idleTime());
        if (failure && order.state != PlayState::Stopped)
            task.desk->failed(order, *failure);
    } while (failure ? !order.isLeaving : player.step(order));
}

} // namespace

void startPlayingThread(PlayingTask task, std::shared_ptr<ThreadCount> count) {
    count->enter();
    try {
        basic::startDetached([task = std::move(task), count]() mutable {
            play(task);
            task = {};
            count->exit();
        });
    } catch (const basic::RuntimeError&) {
        count->exit();
        throw;
    }
}

} // namespace mediagraph
