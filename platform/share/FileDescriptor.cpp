// SPDX-FileCopyrightText: 2026 The qmClient authors
// SPDX-License-Identifier: GPL-3.0-or-later
#include "platform/share/FileDescriptor.h"

#include <unistd.h>

namespace share {

FileDescriptor::~FileDescriptor() {
    if (isOpen())
        ::close(m_descriptor);
}

} // namespace share
