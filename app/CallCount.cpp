// SPDX-FileCopyrightText: 2026 The qmClient authors
// SPDX-License-Identifier: GPL-3.0-or-later
#include "app/CallCount.h"

#include "platform/basic/RuntimeError.h"

namespace app {

std::int32_t callCount(jet::Recordset& records) {
    const basic::Variant& value = records.Field(0);
    if (const auto* number = std::get_if<std::int32_t>(&value))
        return *number;
    throw basic::RuntimeError(basic::kTypeMismatch);
}

} // namespace app
