// SPDX-FileCopyrightText: 2026 The qmClient authors
// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once
// Raises the provider's syntax error with the place and the piece of the statement.

#include <cstddef>
#include <string_view>

namespace jet::sql {

// Throws RuntimeError kProviderSyntax: "Syntax error (<problem>) at position <1-based byte>: <piece>".
[[noreturn]] void failSyntax(std::string_view statement, std::size_t position, std::string_view problem);

} // namespace jet::sql
