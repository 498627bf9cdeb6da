// SPDX-FileCopyrightText: 2026 The qmClient authors
// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once
// One change of a key tree, kept apart from the tree so that it can be applied to what the file holds at the
// moment of saving.

#include "platform/registry/Key.h"

#include <string>

namespace registry {

struct Operation {
    enum class Kind {
        CreateKey,
        SetValue,  // creates the key when it is missing
        DeleteKey, // leaves a key that has sub-keys, which may have come from somebody else meanwhile
    };

    Kind kind = Kind::CreateKey;
    std::string path; // from the tree's root, the hive's name first
    Value value;      // of SetValue
};

void apply(const Operation& operation, Key& root);

} // namespace registry
