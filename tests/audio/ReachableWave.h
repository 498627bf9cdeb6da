// SPDX-FileCopyrightText: 2026 The qmClient authors
// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once
// The engine with what its owner cannot reach.

#include "audio/clsWave.h"

namespace audio {

class ReachableWave : public clsWave {
public:
    using clsWave::clsWave;
    using clsWave::RunFilterGraph;
    using clsWave::SetIsRecording;
};

} // namespace audio
