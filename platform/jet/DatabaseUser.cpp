// SPDX-FileCopyrightText: 2026 The qmClient authors
// SPDX-License-Identifier: GPL-3.0-or-later
#include "platform/jet/DatabaseUser.h"

#include <unistd.h>

#include <array>

namespace jet {

DatabaseUser DatabaseUser::ofThisMachine() {
    std::array<char, 256> name{};
    const bool isKnown = ::gethostname(name.data(), name.size() - 1) == 0 && name.front() != '\0';
    return {.computer = isKnown ? name.data() : "localhost"};
}

} // namespace jet
