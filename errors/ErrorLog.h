// SPDX-FileCopyrightText: 2026 The qmClient authors
// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once
// Where the error log lies: named after the program, in the working directory of the moment; if no file can
// be opened for appending there, in the user's state directory. Nothing is kept open here; each report opens
// the log for itself.

#include "errors/LogFile.h"

#include <string>
#include <string_view>

namespace errors {

class ErrorLog {
public:
    // `fileName` has no directory; an empty `fallbackFolder` means there is none.
    ErrorLog(std::string fileName, std::string fallbackFolder)
        : m_fileName(std::move(fileName)), m_fallbackFolder(std::move(fallbackFolder)) {}

    // Throws the failure of the last place that was tried.
    LogFile open() const;

private:
    std::string m_fileName;
    std::string m_fallbackFolder;
};

// An executable's name without directory and without extension: "qmClient" of "/usr/bin/qmClient.bin".
std::string baseNameOf(std::string_view executable);
// The program's folder below $XDG_STATE_HOME, or below ~/.local/state where that is not set to an absolute
// path; empty when there is no home directory either.
std::string stateFolder();

} // namespace errors
