// SPDX-FileCopyrightText: 2026 The qmClient authors
// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once
// Text of a database turned into UTF-8. Stored text is UTF-16, or compressed behind a two-byte mark: one byte
// per Latin-1 character, with zero bytes switching to UTF-16 and back. Units that are no valid UTF-16 become
// U+FFFD, a half unit at the end is dropped; no bytes are an error. Layout: docs/jet4-format.md, "Text".

#include <cstddef>
#include <span>
#include <string>

namespace jet {

// Text of a variable column or a memo: compressed or not, as its mark says. Appends, so that many values can
// share one string.
void appendText(std::string& to, std::span<const std::byte> stored);
// Text that is never compressed: names in definitions and text in fixed columns.
void appendPlainText(std::string& to, std::span<const std::byte> stored);

std::string decodeText(std::span<const std::byte> stored);
std::string decodePlainText(std::span<const std::byte> stored);

} // namespace jet
