// SPDX-FileCopyrightText: 2026 The qmClient authors
// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once
// What every trapped failure is handed to. The real one (basErrHandling) writes the log record and shows the
// dialog; it returns only when the user has answered. User-interface thread only.

#include <cstdint>
#include <string_view>

namespace errors {

enum class ErrorAction : std::int32_t {
    Retry = 1,  // run the failing statement again
    Ignore = 2, // go on with the statement after it
    Abort = 3,  // leave the procedure through its clean-up exit
};

class ErrorHandler {
public:
    virtual ~ErrorHandler() = default;
    // `line` is the failing line's number, 0 where there is none.
    virtual ErrorAction ReportError(std::string_view module, std::string_view procedure, std::int32_t number,
                                    std::string_view description, std::int32_t line) = 0;
};

} // namespace errors
