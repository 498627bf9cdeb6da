// SPDX-FileCopyrightText: 2026 The qmClient authors
// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once
// The planned failures of the playback engine. Their texts are these, in every language: they go into the
// error log, where support looks for them.

#include "errors/ErrorHandler.h"
#include "errors/SourceLine.h"

#include <cstdint>
#include <string>
#include <string_view>

namespace audio {

struct WaveError {
    std::int32_t number = 0;
    std::string description;
};

WaveError cleanGraphFailed();
WaveError fileNameEmpty();
WaveError addFileSourceFailed();
WaveError addFilterFailed(std::string_view rendererName);
WaveError filterNotFound(std::string_view filterName);

// Reports a planned failure of the module "clsWave" and hands back the user's choice, which changes nothing:
// the procedure that failed has ended.
errors::ErrorAction ReportWaveError(errors::ErrorHandler& errorHandler, const WaveError& error,
                                    std::string_view procedure,
                                    errors::SourceLine line = errors::SourceLine::here());

} // namespace audio
