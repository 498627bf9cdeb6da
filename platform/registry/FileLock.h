// SPDX-FileCopyrightText: 2026 The qmClient authors
// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once
// The lock under which a settings file is read, changed and replaced: an advisory lock on a file beside it,
// because the settings file itself becomes another one with every save. Held for the object's life; the lock
// file stays behind, since removing it would let two processes lock two different ones. Waits two seconds at
// most for another holder, then a StoreError.

#include "platform/registry/Descriptor.h"

#include <string>

namespace registry {

class FileLock {
public:
    FileLock(SystemCalls& calls, const std::string& path);

private:
    Descriptor m_file;
};

} // namespace registry
