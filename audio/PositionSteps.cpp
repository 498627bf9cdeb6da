// SPDX-FileCopyrightText: 2026 The qmClient authors
// SPDX-License-Identifier: GPL-3.0-or-later
#include "audio/PositionSteps.h"

#include "platform/basic/Conversion.h"

namespace audio {
namespace {

using mediagraph::IMediaPosition;

constexpr double kSteps = 10;
constexpr double kNearStart = 1; // seconds
constexpr double kBeyondEnd = 1; // seconds

bool atEnd(IMediaPosition& position) {
    return basic::CLng(position.CurrentPosition()) == basic::CLng(position.Duration());
}

bool isAtStart(IMediaPosition& position) {
    return position.CurrentPosition() == 0;
}

} // namespace

void stepForward(IMediaPosition& position) {
    if (isAtStart(position))
        return;
    const double duration = position.Duration();
    if (duration + kBeyondEnd > position.CurrentPosition() + duration / kSteps)
        position.SetCurrentPosition(position.CurrentPosition() + position.Duration() / kSteps);
}

void stepBackward(IMediaPosition& position) {
    if (isAtStart(position))
        return;
    if (position.CurrentPosition() - position.Duration() / kSteps <= kNearStart)
        position.SetCurrentPosition(0);
    else
        position.SetCurrentPosition(position.CurrentPosition() - position.Duration() / kSteps);
}

// The second look is there on purpose: a graph may reach its end between the two.
bool rewindForRestart(IMediaPosition& position) {
    const bool wasAtEnd = atEnd(position);
    if (!wasAtEnd && atEnd(position))
        return basic::CLng(position.CurrentPosition()) == 0;
    position.SetCurrentPosition(0);
    return true;
}

} // namespace audio
