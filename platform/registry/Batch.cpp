// SPDX-FileCopyrightText: 2026 The qmClient authors
// SPDX-License-Identifier: GPL-3.0-or-later
#include "platform/registry/Batch.h"

#include "platform/basic/RuntimeError.h"

namespace registry {

Batch::Batch(Registry& registry) : m_registry(registry) {
    if (registry.m_hasBatch)
        throw basic::RuntimeError(basic::kInvalidProcedureCall);
    registry.m_hasBatch = true;
    registry.m_currentUser.beginBatch();
    registry.m_localMachine.beginBatch();
}

Batch::~Batch() {
    end();
}

void Batch::commit() {
    if (!m_isOpen)
        return;
    m_registry.m_currentUser.commitBatch();
    m_registry.m_localMachine.commitBatch();
    end();
}

void Batch::end() noexcept {
    if (!m_isOpen)
        return;
    m_isOpen = false;
    m_registry.m_currentUser.dropBatch();
    m_registry.m_localMachine.dropBatch();
    m_registry.m_hasBatch = false;
}

} // namespace registry
