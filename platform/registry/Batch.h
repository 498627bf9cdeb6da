// SPDX-FileCopyrightText: 2026 The qmClient authors
// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once
// Changes that are saved together or not at all. While it lives, the registry's calls see its changes and
// save nothing; commit() locks each changed file, applies them to what it holds by then, and replaces it
// once. The lock is held only inside of commit(). Destroyed without commit, nothing was changed. One at a
// time for a registry, which must outlive it.

#include "platform/registry/Registry.h"

namespace registry {

class Batch {
public:
    // Error 5 while another batch is open.
    explicit Batch(Registry& registry);
    Batch(const Batch&) = delete;
    Batch& operator=(const Batch&) = delete;
    ~Batch();

    // Error 75 when a file cannot be written. The batch then stays open and may be committed again.
    void commit();

private:
    void end() noexcept;

    Registry& m_registry;
    bool m_isOpen = true;
};

} // namespace registry
