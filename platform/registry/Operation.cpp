// SPDX-FileCopyrightText: 2026 The qmClient authors
// SPDX-License-Identifier: GPL-3.0-or-later
#include "platform/registry/Operation.h"

#include "platform/registry/KeyPath.h"

namespace registry {

void apply(const Operation& operation, Key& root) {
    const auto names = splitPath(operation.path);
    switch (operation.kind) {
    case Operation::Kind::CreateKey:
        obtainPath(root, names);
        break;
    case Operation::Kind::SetValue:
        obtainPath(root, names).setValue(operation.value);
        break;
    case Operation::Kind::DeleteKey:
        if (const Key* const key = findPath(root, names); key != nullptr && key->keys().empty())
            removePath(root, names);
        break;
    }
}

} // namespace registry
