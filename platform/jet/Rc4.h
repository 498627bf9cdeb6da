// SPDX-FileCopyrightText: 2026 The qmClient authors
// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once
// The RC4 stream as databases use it to mask a part of the header and to encode pages: the same call encodes
// and decodes. Not meant as protection. Layout: docs/jet4-format.md, "Header".

#include <cstddef>
#include <cstdint>
#include <span>

namespace jet {

// The key holds at least one byte.
void applyRc4(std::span<const std::uint8_t> key, std::span<std::byte> data);

} // namespace jet
