// SPDX-FileCopyrightText: 2026 The qmClient authors
// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once
// What the error dialog says about the program and the machine it runs on; the same for every failure.

#include "errors/GetWinVer.h"

#include <string>
#include <string_view>

namespace errors {

struct ProgramFacts {
    std::string component; // "Quillamar Client (qmClient)"
    std::string version;   // "1.0.747"
    GetVersionExA getVersionEx;
};

// Of this program, running from `executable`, on this machine.
ProgramFacts programFacts(std::string_view executable);

} // namespace errors
