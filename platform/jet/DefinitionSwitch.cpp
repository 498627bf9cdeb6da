// SPDX-FileCopyrightText: 2026 The qmClient authors
// SPDX-License-Identifier: GPL-3.0-or-later
#include "platform/jet/DefinitionSwitch.h"

#include "platform/jet/ByteEditor.h"

#include <algorithm>

namespace jet {

using namespace format;

namespace {

constexpr std::size_t kContinuationSize = page::kSize - definition::kContinuationStart;

std::vector<std::byte> patched(const TableDefinition& from, const TableDefinition& to) {
    std::vector<std::byte> bytes = from.bytes;
    ByteEditor editor(bytes);
    editor.put32(definition::kRowCount, to.rowCount);
    editor.put32(definition::kOwnedMap, to.ownedMap.stored());
    editor.put32(definition::kFreeMap, to.freeMap.stored());
    for (const RealIndex& index : to.realIndexes) {
        editor.put32(index.definitionOffset + realIndex::kUsageMap, index.usageMap.stored());
        editor.put32(index.definitionOffset + realIndex::kRoot, index.root);
    }
    return bytes;
}

// Of the `number`-th continuation page, from 1.
std::span<const std::byte> continuation(std::span<const std::byte> bytes, std::size_t number) {
    return bytes.subspan(page::kSize + (number - 1) * kContinuationSize, kContinuationSize);
}

// The number of the last continuation page that differs; 0 when none does.
std::size_t lastChanged(const TableDefinition& from, std::span<const std::byte> changed) {
    std::size_t number = from.pages.size() - 1;
    while (number > 0 && std::ranges::equal(continuation(from.bytes, number), continuation(changed, number)))
        --number;
    return number;
}

} // namespace

DefinitionSwitch::DefinitionSwitch(WriteCache& cache, PageAllocator& allocator, const TableDefinition& from,
                                   const TableDefinition& to) {
    const std::vector<std::byte> changed = patched(from, to);
    std::copy_n(changed.begin(), page::kSize, m_firstPage.begin());
    replaceContinuations(cache, allocator, from, changed);
}

// From the last one that changed to the first, as each points to the next; those behind stay.
void DefinitionSwitch::replaceContinuations(WriteCache& cache, PageAllocator& allocator,
                                            const TableDefinition& from, std::span<const std::byte> changed) {
    const std::size_t last = lastChanged(from, changed);
    PageNumber next = 0;
    for (std::size_t number = last; number > 0; --number) {
        PageBuffer old;
        std::ranges::copy(cache.page(from.pages[number], old), old.begin());
        const PageNumber copy = allocator.allocate();
        ByteEditor bytes(cache.edit(copy, WriteStage::NewPage));
        bytes.copy(0, old);
        bytes.copy(definition::kContinuationStart, continuation(changed, number));
        if (number != last)
            bytes.put32(definition::kNextPage, next);
        next = copy;
        m_replaced.push_back(from.pages[number]);
    }
    if (last > 0)
        ByteEditor(m_firstPage).put32(definition::kNextPage, next);
}

} // namespace jet
