// SPDX-FileCopyrightText: 2026 The qmClient authors
// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once
// Names of tables and columns compare without case. ASCII and the Latin-1 letters are folded; beyond these
// letters of different case are different names.

#include <string_view>

namespace jet {

// Both names are UTF-8.
bool equalNames(std::string_view left, std::string_view right) noexcept;

} // namespace jet
