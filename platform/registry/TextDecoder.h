// SPDX-FileCopyrightText: 2026 The qmClient authors
// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once
// The bytes of a settings file as UTF-8 without a byte-order mark: from UTF-8, or from UTF-16 of either byte
// order with its mark, as the platform's own editor exports it.

#include <string>
#include <string_view>

namespace registry {

// `source` names the file in the StoreError (with the line) that bytes of no valid encoding give.
std::string decodeText(std::string_view bytes, std::string_view source);

} // namespace registry
