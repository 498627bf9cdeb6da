// SPDX-FileCopyrightText: 2026 The qmClient authors
// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once
// Work on many things of which some may fail, and the others are to be tried all the same.

#include "platform/basic/RuntimeError.h"

#include <exception>

namespace share {

// Does `work` with each of `items`; the first failure is thrown after all were tried.
template <typename Items, typename Work>
void tryEach(const Items& items, Work work) {
    std::exception_ptr firstFailure;
    for (const auto& item : items) {
        try {
            work(item);
        } catch (const basic::RuntimeError&) {
            if (!firstFailure)
                firstFailure = std::current_exception();
        }
    }
    if (firstFailure)
        std::rethrow_exception(firstFailure);
}

} // namespace share
