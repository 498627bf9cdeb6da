// SPDX-FileCopyrightText: 2026 The qmClient authors
// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once
// What a shared pointer points to; error 91 for none, as the platform has it for an object that is not set.

#include "platform/basic/RuntimeError.h"

#include <memory>

namespace audio {

template <typename Object>
Object& required(const std::shared_ptr<Object>& object) {
    if (!object)
        throw basic::RuntimeError(basic::kObjectNotSet);
    return *object;
}

} // namespace audio
