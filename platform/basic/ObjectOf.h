// SPDX-FileCopyrightText: 2026 The qmClient authors
// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once
// What a pointer points to, or error 91 for null: for objects that an earlier statement was to create and
// that are missing when that statement failed and was ignored. Any thread.

#include "platform/basic/RuntimeError.h"

namespace basic {

template <typename Pointer>
decltype(auto) objectOf(const Pointer& pointer) {
    if (!pointer)
        throw RuntimeError(kObjectNotSet);
    return *pointer;
}

} // namespace basic
