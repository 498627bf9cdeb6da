// SPDX-FileCopyrightText: 2026 The qmClient authors
// SPDX-License-Identifier: GPL-3.0-or-later
#include "platform/jet/ReadGuard.h"

#include <string>

namespace jet {

DatabaseBusy::DatabaseBusy(const share::File& file)
    : RuntimeError(basic::kProviderFailure,
                   file.name() + ": the database is being written, no consistent state after " +
                       std::to_string(kMaxReadTries) + " tries") {}

} // namespace jet
