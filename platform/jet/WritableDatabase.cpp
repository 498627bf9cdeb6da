// SPDX-FileCopyrightText: 2026 The qmClient authors
// SPDX-License-Identifier: GPL-3.0-or-later
#include "platform/jet/WritableDatabase.h"

#include "platform/basic/RuntimeError.h"
#include "platform/jet/DatabaseHeader.h"

namespace jet {

void refuseUnwritable(share::File& file) {
    const DatabaseHeader header = DatabaseHeader::read(file);
    if (header.databaseKey != 0)
        throw basic::RuntimeError(basic::kProviderReadOnly, file.name() + ": the database is encoded");
    if (header.commitWords.isWriting() || header.commitWords.isDamaged())
        throw basic::RuntimeError(basic::kProviderFailure,
                                  file.name() + ": the database is being written or needs repair");
}

} // namespace jet
