// SPDX-FileCopyrightText: 2026 The qmClient authors
// SPDX-License-Identifier: GPL-3.0-or-later
#include "platform/registry/Hive.h"

#include "platform/registry/KeyPath.h"

namespace registry {

std::string Hive::fullPath(std::string_view path) const {
    return path.empty() ? m_name : m_name + "\\" + std::string(path);
}

const Key* Hive::find(std::string_view path) {
    const Key& root = m_pending ? m_pending->view : m_file.tree();
    return findPath(root, splitPath(fullPath(path)));
}

void Hive::carryOut(Operation operation) {
    if (!m_isBatchOpen) {
        m_file.change({std::move(operation)});
        return;
    }
    if (!m_pending)
        m_pending.emplace(Pending{{}, m_file.freshTree()});
    apply(operation, m_pending->view);
    m_pending->operations.push_back(std::move(operation));
}

void Hive::beginBatch() {
    m_isBatchOpen = true;
}

void Hive::commitBatch() {
    if (m_pending)
        m_file.change(m_pending->operations);
    m_pending.reset();
}

void Hive::dropBatch() noexcept {
    m_pending.reset();
    m_isBatchOpen = false;
}

} // namespace registry
