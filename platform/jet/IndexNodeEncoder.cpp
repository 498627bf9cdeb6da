// SPDX-FileCopyrightText: 2026 The qmClient authors
// SPDX-License-Identifier: GPL-3.0-or-later
#include "platform/jet/IndexNodeEncoder.h"

#include "platform/basic/RuntimeError.h"
#include "platform/jet/BitSpan.h"
#include "platform/jet/ByteEditor.h"

namespace jet {

using namespace format;

namespace {

std::span<const std::byte> asBytes(std::string_view text) {
    return std::as_bytes(std::span(text));
}

std::uint32_t bigEndian(std::uint32_t value) {
    return value << 24U | (value << 8U & 0xFF0000U) | (value >> 8U & 0xFF00U) | value >> 24U;
}

} // namespace

void encodeIndexNode(const IndexNode& node, PageNumber owner, MutablePage page) {
    if (node.encodedSize() > indexPage::kEntrySpace)
        throw basic::RuntimeError(basic::kInternalError, "An index page that holds too much");
    ByteEditor bytes(page);
    bytes.fill(0, page.size(), 0);
    bytes.put8(page::kType, node.isLeaf ? page::kIndexLeaf : page::kIndexNode);
    bytes.put8(page::kMark, page::kMarkValue);
    bytes.put16(page::kFreeBytes, static_cast<std::uint16_t>(indexPage::kEntrySpace - node.encodedSize()));
    bytes.put32(page::kOwner, owner);
    bytes.put32(indexPage::kPrevious, node.previous);
    bytes.put32(indexPage::kNext, node.next);
    bytes.put32(indexPage::kTail, node.tail);
    const std::size_t prefix = node.prefixLength();
    bytes.put16(indexPage::kPrefixLength, static_cast<std::uint16_t>(prefix));
    const BitSpan ends(page.subspan(indexPage::kEntryEnds, indexPage::kEntryEndsSize));
    std::size_t at = 0;
    for (std::size_t i = 0; i < node.entries.size(); ++i) {
        const std::string_view stored = std::string_view(node.entries[i].bytes).substr(i == 0 ? 0 : prefix);
        bytes.copy(indexPage::kEntries + at, asBytes(stored));
        at += stored.size();
        if (!node.isLeaf) {
            bytes.put32(indexPage::kEntries + at, bigEndian(node.entries[i].child));
            at += indexPage::kChildPointerSize;
        }
        ends.set(at, true);
    }
}

} // namespace jet
