// SPDX-FileCopyrightText: 2026 The qmClient authors
// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once
// Key names joined by backslashes, and the rules for a name that can be stored: not empty, at most 255 UTF-16
// units, no control characters.

#include "platform/registry/Key.h"

#include <string_view>
#include <vector>

namespace registry {

// The names of a path; an empty path has none. Empty names between backslashes are kept, for the caller to
// refuse.
std::vector<std::string_view> splitPath(std::string_view path);

bool isStorableKeyPath(const std::vector<std::string_view>& names);
bool isStorableValueName(std::string_view name);

// Null when any key on the way is missing.
const Key* findPath(const Key& from, const std::vector<std::string_view>& names);
Key& obtainPath(Key& from, const std::vector<std::string_view>& names);
// Removes the last key of the path with all below it; false when it was not there.
bool removePath(Key& from, const std::vector<std::string_view>& names);

} // namespace registry
