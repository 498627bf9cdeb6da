// SPDX-FileCopyrightText: 2026 The qmClient authors
// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once
// One settings file and the tree it holds. Reading looks whether the file changed since it was last read; a
// missing file is an empty tree. Changes are made under a lock on what the file holds at that moment, so two
// programs that write do not lose each other's keys, and replace the file whole or not at all. A damaged file
// is never replaced. Every failure is a StoreError. One thread at a time.

#include "platform/registry/Operation.h"
#include "platform/registry/SystemCalls.h"

#include <string>
#include <vector>

namespace registry {

class RegistryFile {
public:
    // The first of `candidates` that exists is the file, the first of them all where none does.
    RegistryFile(SystemCalls& calls, std::vector<std::string> candidates)
        : m_calls(calls), m_candidates(std::move(candidates)) {}
    RegistryFile(const RegistryFile&) = delete;
    RegistryFile& operator=(const RegistryFile&) = delete;

    // Good until the next call.
    const Key& tree();
    // A tree of the caller's own, as the file is now.
    Key freshTree();
    void change(const std::vector<Operation>& operations);
    // Whether an existing file may be written by this user.
    bool isWritable();

private:
    // What tells one content of the file from the next.
    struct Stamp {
        bool exists = false;
        dev_t device = 0;
        ino_t inode = 0;
        off_t size = 0;
        std::int64_t modified = 0; // nanoseconds, as the next
        std::int64_t changed = 0;
        bool operator==(const Stamp&) const = default;
    };

    static Stamp stampOf(const struct stat& status);
    Stamp stampNow(const std::string& path);
    std::string currentPath();
    Key load(const std::string& path, Stamp& stamp);

    SystemCalls& m_calls;
    std::vector<std::string> m_candidates;
    Key m_tree;
    std::string m_treePath; // empty before the first reading
    Stamp m_treeStamp;
};

} // namespace registry
