// SPDX-FileCopyrightText: 2026 The qmClient authors
// SPDX-License-Identifier: GPL-3.0-or-later
#include "platform/jet/LongValueWriter.h"

#include "platform/basic/RuntimeError.h"

namespace jet {

using namespace format;

namespace {

constexpr std::size_t kChunk = longValue::kMaxRow - dataPage::kRowPointerSize;

Bytes field(std::uint32_t kind, std::size_t size, RowPointer where) {
    if (size > longValue::kLengthMask)
        throw basic::RuntimeError(basic::kProviderFailure,
                                  "A value of " + std::to_string(size) + " bytes is too long for a field");
    ByteBuilder builder;
    builder.add32(kind | static_cast<std::uint32_t>(size));
    builder.add32(where.stored());
    builder.add32(0);
    return builder.take();
}

} // namespace

LongValueWriter::LongValueWriter(WriteCache& cache, PageAllocator& allocator, FreeSpace::Maps maps)
    : m_space(cache, allocator, maps, dataPage::kLongValueOwner, WriteStage::LongValues) {}

bool LongValueWriter::isShort(std::size_t size) noexcept {
    return size <= longValue::kMaxInline;
}

std::size_t LongValueWriter::fieldSize(std::size_t size, bool inRow) noexcept {
    return longValue::kHeaderSize + (inRow ? size : 0);
}

Bytes LongValueWriter::inRow(std::span<const std::byte> value) {
    Bytes bytes = field(longValue::kInline, value.size(), {});
    bytes.insert(bytes.end(), value.begin(), value.end());
    return bytes;
}

Bytes LongValueWriter::store(std::span<const std::byte> value) {
    if (value.size() <= longValue::kMaxRow)
        return field(longValue::kSingleRow, value.size(), m_space.store(value));
    return field(longValue::kChain, value.size(), storeChain(value));
}

// From the end, as each row holds the place of the next.
RowPointer LongValueWriter::storeChain(std::span<const std::byte> value) {
    RowPointer next{};
    for (std::size_t end = value.size(); end > 0;) {
        const std::size_t begin = (end - 1) / kChunk * kChunk;
        ByteBuilder row;
        row.add32(next.stored());
        row.addBytes(value.subspan(begin, end - begin));
        next = m_space.store(row.bytes());
        end = begin;
    }
    return next;
}

} // namespace jet
