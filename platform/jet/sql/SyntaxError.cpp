// SPDX-FileCopyrightText: 2026 The qmClient authors
// SPDX-License-Identifier: GPL-3.0-or-later
#include "platform/jet/sql/SyntaxError.h"

#include "platform/basic/RuntimeError.h"

#include <algorithm>
#include <string>

namespace jet::sql {
namespace {

constexpr std::size_t kPieceLength = 40;

bool isContinuation(char c) {
    return (static_cast<unsigned char>(c) & 0xC0U) == 0x80U;
}

std::string_view pieceAt(std::string_view statement, std::size_t position) {
    std::size_t length = std::min(kPieceLength, statement.size() - position);
    while (position + length < statement.size() && isContinuation(statement[position + length]))
        ++length;
    return statement.substr(position, length);
}

} // namespace

void failSyntax(std::string_view statement, std::size_t position, std::string_view problem) {
    const std::size_t at = std::min(position, statement.size());
    std::string text("Syntax error (");
    text.append(problem).append(") at position ").append(std::to_string(at + 1));
    if (at < statement.size())
        text.append(": ").append(pieceAt(statement, at));
    throw basic::RuntimeError(basic::kProviderSyntax, std::move(text));
}

} // namespace jet::sql
