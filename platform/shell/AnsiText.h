// SPDX-FileCopyrightText: 2026 The qmClient authors
// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once
// The ANSI code page of the narrow interfaces: Windows-1252, what Western European workstations use. A
// character without a place in it becomes '?'; the five unassigned bytes keep their numbers both ways.
// Plain functions, any thread.

#include <string>
#include <string_view>

namespace shell {

std::string toAnsi(std::u16string_view text);
std::u16string fromAnsi(std::string_view text);

} // namespace shell
