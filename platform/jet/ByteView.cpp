// SPDX-FileCopyrightText: 2026 The qmClient authors
// SPDX-License-Identifier: GPL-3.0-or-later
#include "platform/jet/ByteView.h"

#include <string>

namespace jet {

void ByteView::failBeyond(std::size_t at, std::size_t length) const {
    fail(std::to_string(length) + " bytes at offset " + std::to_string(at) + " lie beyond the end at " +
         std::to_string(m_bytes.size()));
}

} // namespace jet
