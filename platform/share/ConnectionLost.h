// SPDX-FileCopyrightText: 2026 The qmClient authors
// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once
// Error 57 of an open file whose connection to its server is gone. Opened anew, the file may be there again
// at once, since a connection is made for each opening that needs one.

#include "platform/basic/RuntimeError.h"

#include <utility>

namespace share {

class ConnectionLost final : public basic::RuntimeError {
public:
    explicit ConnectionLost(std::string description)
        : RuntimeError(basic::kDeviceIoError, std::move(description)) {}
};

} // namespace share
