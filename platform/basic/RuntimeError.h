// SPDX-FileCopyrightText: 2026 The qmClient authors
// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once
// The one exception of the program: a platform error number and a description for people. It is thrown where
// a failure is seen and caught only by the error trap of a procedure. A description names its context (file,
// table, page, row, line), never a password.

#include "platform/basic/ErrorNumbers.h"

#include <cstdint>
#include <exception>
#include <string>
#include <string_view>

namespace basic {

class RuntimeError : public std::exception {
public:
    explicit RuntimeError(std::int32_t number) : RuntimeError(number, std::string(errorText(number))) {}
    RuntimeError(std::int32_t number, std::string description)
        : m_number(number), m_description(std::move(description)) {}

    std::int32_t number() const noexcept { return m_number; }
    const std::string& description() const noexcept { return m_description; }
    const char* what() const noexcept override { return m_description.c_str(); }

private:
    std::int32_t m_number;
    std::string m_description;
};

// The platform's number for a POSIX errno value (ENOENT: 53, EBUSY: 55, EIO and what a network answers: 57,
// ENOSPC: 61, EACCES: 70, ENOTDIR: 76, ENOMEM: 7, others: 75), with a description "<what>: <path>: <system's
// text>".
RuntimeError errorFromErrno(int errnoValue, std::string_view what, std::string_view path);

} // namespace basic
