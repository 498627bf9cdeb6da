// SPDX-FileCopyrightText: 2026 The qmClient authors
// SPDX-License-Identifier: GPL-3.0-or-later
#include "platform/jet/TableDefinition.h"

#include "platform/jet/NameComparison.h"

#include <algorithm>

namespace jet {

const Column* TableDefinition::findColumn(std::string_view name) const {
    const auto found =
        std::ranges::find_if(columns, [name](const Column& column) { return equalNames(column.name, name); });
    return found == columns.end() ? nullptr : &*found;
}

const Column* TableDefinition::findColumn(std::uint16_t number) const {
    const auto found = std::ranges::find(columns, number, &Column::number);
    return found == columns.end() ? nullptr : &*found;
}

} // namespace jet
