// SPDX-FileCopyrightText: 2026 The qmClient authors
// SPDX-License-Identifier: GPL-3.0-or-later
#include "platform/jet/Place.h"

#include "platform/basic/RuntimeError.h"

namespace jet {

std::string Place::describe() const {
    std::string text(file);
    if (!table.empty())
        text.append(", table ").append(table);
    text.append(", page ").append(std::to_string(page));
    if (row != kNoRow)
        text.append(", row ").append(std::to_string(row));
    return text;
}

void Place::fail(std::string_view problem) const {
    throw basic::RuntimeError(basic::kProviderFailure, describe().append(": ").append(problem));
}

} // namespace jet
