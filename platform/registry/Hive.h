// SPDX-FileCopyrightText: 2026 The qmClient authors
// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once
// One root of the registry: its name, its file, and what an open batch has changed in it so far. Used by
// Registry alone.

#include "platform/registry/RegistryFile.h"

#include <optional>
#include <string>
#include <vector>

namespace registry {

class Hive {
public:
    Hive(std::string name, SystemCalls& calls, std::vector<std::string> candidates)
        : m_name(std::move(name)), m_file(calls, std::move(candidates)) {}

    bool isWritable() { return m_file.isWritable(); }
    // The names from the tree's root down to a key of this hive.
    std::string fullPath(std::string_view path) const;
    // Null when it is missing.
    const Key* find(std::string_view path);
    // Saves at once, or gathers while a batch is open.
    void carryOut(Operation operation);

    void beginBatch();
    void commitBatch();
    void dropBatch() noexcept;

private:
    // The changes, and the tree as it looks with them.
    struct Pending {
        std::vector<Operation> operations;
        Key view;
    };

    std::string m_name;
    RegistryFile m_file;
    bool m_isBatchOpen = false;
    std::optional<Pending> m_pending; // made by the first change
};

} // namespace registry
