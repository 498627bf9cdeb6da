// SPDX-FileCopyrightText: 2026 The qmClient authors
// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once
// A failure of the file behind the store: error 75 for the program, together with the return code that the
// platform's call would give.

#include "platform/basic/RuntimeError.h"

#include <string>

namespace registry {

class StoreError : public basic::RuntimeError {
public:
    StoreError(std::int32_t code, const std::string& context);
    // After a failed system call: the code that fits `errnoValue`, the context "<what>: <path>: <reason>".
    static StoreError afterSystemCall(int errnoValue, std::string_view what, std::string_view path);

    std::int32_t code() const noexcept { return m_code; }

private:
    std::int32_t m_code;
};

} // namespace registry
