// SPDX-FileCopyrightText: 2026 The qmClient authors
// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once
// What the error handler needs of the error dialog, in the order of its calls: the five values, Init, the
// modal showing, the answer. Init empties the answer of the failure before. User-interface thread.

#include <cstdint>
#include <string>
#include <string_view>

namespace errors {

class ErrorDialog {
public:
    ErrorDialog() = default;
    ErrorDialog(const ErrorDialog&) = delete;
    ErrorDialog& operator=(const ErrorDialog&) = delete;
    virtual ~ErrorDialog() = default;

    virtual void setErrorNumber(std::int32_t number) = 0;
    virtual void setLineNumber(std::int32_t line) = 0;
    virtual void setDescription(std::string_view description) = 0;
    virtual void setProcedureName(std::string_view procedure) = 0;
    virtual void setModuleName(std::string_view module) = 0;
    virtual void Init() = 0;
    // Returns when the dialog is hidden again.
    virtual void showModal() = 0;
    // "I", "R" or "A"; empty when it was closed without a button.
    virtual std::string answer() const = 0;
};

} // namespace errors
