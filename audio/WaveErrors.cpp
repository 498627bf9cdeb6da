// SPDX-FileCopyrightText: 2026 The qmClient authors
// SPDX-License-Identifier: GPL-3.0-or-later
#include "audio/WaveErrors.h"

namespace audio {
namespace {

std::string quoted(std::string_view before, std::string_view name, std::string_view after) {
    std::string text(before);
    text.append(name).append(after);
    return text;
}

} // namespace

WaveError cleanGraphFailed() {
    return {3652, "CleanGraph failed!"};
}
WaveError fileNameEmpty() {
    return {3653, "Filename empty. Cannot play!"};
}
WaveError addFileSourceFailed() {
    return {3654, "AddFilter 'FileSource' failed!"};
}
WaveError addFilterFailed(std::string_view rendererName) {
    return {3655, quoted("AddFilter failed: '", rendererName, "'")};
}
WaveError filterNotFound(std::string_view filterName) {
    return {3670, quoted("Filter '", filterName, "' could not be found!")};
}

errors::ErrorAction ReportWaveError(errors::ErrorHandler& errorHandler, const WaveError& error,
                                    std::string_view procedure, errors::SourceLine line) {
    return errorHandler.ReportError("clsWave", procedure, error.number, error.description, line.number);
}

} // namespace audio
