// SPDX-FileCopyrightText: 2026 The qmClient authors
// SPDX-License-Identifier: GPL-3.0-or-later
#include "platform/jet/ReadGuard.h"

#include <string>

namespace jet {

void failBusy(const share::File& file) {
    throw basic::RuntimeError(basic::kProviderFailure,
                              file.name() + ": the database is being written, no consistent state after " +
                                  std::to_string(kMaxReadTries) + " tries");
}

} // namespace jet
