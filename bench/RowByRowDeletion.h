// SPDX-FileCopyrightText: 2026 The qmClient authors
// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once
// Deletes the rows of a table one after the other, in one go to the disk: each is marked in its page and
// taken off the definition's count. The entries of indexes and the long values stay where they are, so this
// is less than any complete deletion row by row has to write, and nothing but a measure to compare with.

#include "platform/share/File.h"

#include <string_view>

namespace bench {

void deleteRowByRow(share::File& file, std::string_view table);

} // namespace bench
