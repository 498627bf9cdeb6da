// SPDX-FileCopyrightText: 2026 The qmClient authors
// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once
// Any thrown thing as the number and the description that the error protocol reports: a RuntimeError keeps
// its own, a failed allocation is 7, everything else 51 with the exception's text.

#include <cstdint>
#include <exception>
#include <string>

namespace errors {

struct Failure {
    std::int32_t number = 0;
    std::string description;
};

Failure describe(const std::exception_ptr& thrown);

} // namespace errors
