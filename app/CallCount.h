// SPDX-FileCopyrightText: 2026 The qmClient authors
// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once
// What the count statement says: the first field of the first row.

#include "platform/jet/Recordset.h"

#include <cstdint>

namespace app {

// Error 13 for a field that is no number.
std::int32_t callCount(jet::Recordset& records);

} // namespace app
