// SPDX-FileCopyrightText: 2026 The qmClient authors
// SPDX-License-Identifier: GPL-3.0-or-later
#include "platform/mediagraph/LedInSource.h"

#include "platform/mediagraph/WatchedMemory.h"

#include <algorithm>
#include <utility>
#include <vector>

namespace mediagraph {
namespace {

// A cycle of PipeWire's is 5 to 170 ms, and takes two pieces at the most.
constexpr std::size_t kPiecesPerSecond = 10;
constexpr std::size_t kSilencesPerSecond = 100;
static_assert(kSilencesPerSecond >= kPiecesPerSecond, "one silence serves both");
// How much of the sound lies ready for the next cycles. The sink holds no more than eight pieces.
constexpr GstClockTime kAhead = 200 * GST_MSECOND;
// A piece or two are on their way to the sink; more were thrown away by it.
constexpr std::size_t kUnread = 2;

std::size_t framesOf(const Samples& samples, std::size_t piecesPerSecond) {
    return std::max<std::size_t>(samples.rate / piecesPerSecond, 1);
}

using Values = std::span<const std::int16_t>;

class LedInFeed final : public Feed {
public:
    LedInFeed(SharedSamples samples, SharedProgress progress)
        : m_samples(std::move(samples)), m_progress(std::move(progress)),
          m_piece(framesOf(*m_samples, kPiecesPerSecond)),
          m_silence(std::make_shared<const std::vector<std::int16_t>>(m_piece * m_samples->channels)),
          m_first(m_progress->handedOut), m_next(m_first) {}

    void needData(GstAppSrc* source) override {
        if (m_progress->begin == GST_CLOCK_TIME_NONE && !*m_isSilenceRead)
            pushLeadIn(source);
        else if (m_next < m_samples->frames())
            pushSound(source);
        else if (m_leadOut < kAhead)
            pushLeadOut(source);
        else
            gst_app_src_end_of_stream(source);
    }

private:
    struct Stretch {
        GstClockTime begin;
        GstClockTime end;
    };

    // The first piece is as long as the sound's: the sink cuts all pieces to the size of its first.
    void pushLeadIn(GstAppSrc* source) {
        const std::size_t frames = m_silenceEnd == 0 ? m_piece : framesOf(*m_samples, kSilencesPerSecond);
        m_silenceBegin = std::exchange(m_silenceEnd, m_silenceEnd + timeOf(*m_samples, frames));
        push(source, Values(*m_silence).first(frames * m_samples->channels), {m_silenceBegin, m_silenceEnd},
             [silence = m_silence, isRead = m_isSilenceRead] { *isRead = true; });
    }

    void pushSound(GstAppSrc* source) {
        m_progress->begin = m_silenceEnd;
        m_progress->isDropped = m_next - m_progress->handedOut > kUnread * m_piece;
        const std::size_t frames = std::min(m_piece, m_samples->frames() - m_next);
        const std::size_t at = std::exchange(m_next, m_next + frames);
        push(source,
             Values(m_samples->values).subspan(at * m_samples->channels, frames * m_samples->channels),
             {dueAt(momentOf(at)), momentOf(m_next)},
             [samples = m_samples, progress = m_progress, next = m_next] { progress->handedOut = next; });
    }

    // PipeWire plays a cycle only when there is enough for all of it. This is out before the sound has ended.
    void pushLeadOut(GstAppSrc* source) {
        const GstClockTime end = momentOf(m_next);
        const GstClockTime due = dueAt(end + m_leadOut);
        push(source, *m_silence, {due, end}, [silence = m_silence] {});
        m_leadOut += timeOf(*m_samples, m_piece);
    }

    GstClockTime momentOf(std::size_t frame) const {
        return m_silenceEnd + timeOf(*m_samples, frame - m_first);
    }
    GstClockTime dueAt(GstClockTime moment) const {
        return std::max(m_silenceBegin + kAhead, moment) - kAhead;
    }

    static void push(GstAppSrc* source, Values values, Stretch when, std::function<void()> isRead) {
        GstBuffer* buffer = gst_buffer_new();
        gst_buffer_append_memory(buffer, newWatchedMemory(std::as_bytes(values), std::move(isRead)));
        GST_BUFFER_PTS(buffer) = when.begin;
        GST_BUFFER_DURATION(buffer) = when.end - when.begin;
        gst_app_src_push_buffer(source, buffer);
    }

    SharedSamples m_samples;
    SharedProgress m_progress;
    std::size_t m_piece; // frames
    std::shared_ptr<const std::vector<std::int16_t>> m_silence;
    std::shared_ptr<std::atomic<bool>> m_isSilenceRead = std::make_shared<std::atomic<bool>>(false);
    std::size_t m_first; // frame
    std::size_t m_next;
    GstClockTime m_silenceBegin = 0; // of the lead-in's last piece
    GstClockTime m_silenceEnd = 0;   // when the sound begins
    GstClockTime m_leadOut = 0;
};

} // namespace

GstElement* newLedInSource(SharedSamples samples, SharedProgress progress) {
    progress->begin = GST_CLOCK_TIME_NONE;
    auto feed = std::make_unique<LedInFeed>(samples, std::move(progress));
    return newAppSource(*samples, 1, std::move(feed));
}

} // namespace mediagraph
