// SPDX-FileCopyrightText: 2026 The qmClient authors
// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once
// What must hold before a database is written to.

#include "platform/share/File.h"

namespace jet {

// Reads the header. kProviderReadOnly when the pages are encoded; kProviderFailure when a commit word says
// that somebody is writing or has met damage, or when the file is no Jet 4 database.
void refuseUnwritable(share::File& file);

} // namespace jet
